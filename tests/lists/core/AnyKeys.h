// Keys of bytes as they may come.
#pragma once

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

/// Calls `check` with keys of few and many different bytes, zeros and bytes above 127 among them, short ones
/// and such as exceed what a head has room for, with and without a common beginning, and with several that
/// are equal. Ends with the first keys that fail.
template <class Check>
void forAnyKeys(const Check& check)
{
    std::mt19937 random(5);
    for (const unsigned symbols : {1, 2, 5, 200})
        for (const unsigned longest : {0, 3, 12, 90})
            for (const unsigned count : {0, 1, 2, 40, 300})
                for (int round = 0; round < 20 && !testing::Test::HasFailure(); ++round) {
                    std::vector<std::string> keys(count);
                    for (std::string& key : keys) {
                        key.assign(random() % 3 == 0 ? longest / 2 : 0, '\xFF');
                        key.resize(key.size() + random() % (longest + 1));
                        for (char& c : key)
                            if (c == '\0')
                                c = static_cast<char>(random() % symbols * 85);
                        if (random() % 4 == 0)
                            key = keys[random() % count];
                        if (round % 2 == 1)
                            key.insert(0, "the same");
                    }
                    SCOPED_TRACE(testing::Message()
                                 << symbols << " symbols, at most " << longest << " bytes, round " << round);
                    check(keys);
                }
}

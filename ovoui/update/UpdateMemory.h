/// What the user has said about updates, and when they were looked for.
#pragma once

#include <ovoui/export.h>

#include <string>

struct AvailableUpdate;

/// Kept in the application's profile, in the section "updates", by product.
class OVOUI_API UpdateMemory
{
public:
    /// What is known about `product`.
    explicit UpdateMemory(const std::wstring& product);

    /// Whether the last check is `days` days or more ago, or the day has come for which the user was promised
    /// a reminder; before that day nothing is due.
    bool isDue(int days) const;
    /// A check has been made now.
    void noteCheck();

    /// Whether the user has said that the version of `update` is to be skipped.
    bool isSkipped(const AvailableUpdate& update) const;
    /// This version, `update`, is not to be offered any more.
    void skip(const AvailableUpdate& update);
    /// No check is due for so many days.
    void remindLater(int days);

    /// The highest number of a signed list that was seen, for `UpdateTrust`.
    std::wstring issue() const;
    /// Keeps the number `issue` of a signed list.
    void keepIssue(const std::wstring& issue);

private:
    std::wstring read(const wchar_t* what) const;
    void write(const wchar_t* what, const std::wstring& value);

    const std::wstring m_product;
};

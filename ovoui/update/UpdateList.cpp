#include <ovoui/update/UpdateList.h>

#include <ovoui/update/CachedCopy.h>
#include <ovoui/update/Refusal.h>
#include <ovoui/update/SignedFile.h>
#include <ovoui/update/core/AddressRules.h>
#include <ovoui/update/core/ListSearch.h>

#include <ovocor/OvoError.h>
#include <ovocor/TextReader.h>
#include <ovocor/Url.h>

#include <algorithm>
#include <stdexcept>

namespace ovoui::update
{
namespace
{

constexpr std::size_t kSignatureLimit = 1024; // bytes; a signature has about 70

void readInto(ListSearch& search, const std::wstring& path, const std::wstring& address)
{
    OVO::TextReader reader(path);
    std::wstring line;
    try {
        while (reader.readLine(line))
            search.feedLine(line);
        search.finish();
    } catch (const IncompleteRow&) {
        refuse(OVOMSG_UPDATE_LIST_INCOMPLETE, address);
    }
}

// Trust

NumberPair keyOf(const UpdateTrust& trust)
{
    const std::optional<NumberPair> key = keyFromPem(trust.publicKey);
    if (!key)
        throw std::invalid_argument("not a public key on the curve P-256");
    return *key;
}

NumberPair fetchSignature(const std::wstring& address, DownloadControl& control)
{
    std::optional<NumberPair> signature;
    try {
        const CachedCopy copy(signatureAddress(address), control);
        signature = signatureFromDer(bytesOf(copy.path(), kSignatureLimit));
    } catch (const DownloadCancelled&) {
        throw;
    } catch (const OvoError&) {
        // A signature that cannot be fetched is none.
    }
    if (!signature)
        refuse(OVOMSG_UPDATE_LIST_UNSIGNED, address);
    return *signature;
}

} // namespace

std::optional<Offer> lastOffer(const std::wstring& address, const RunningProduct& running, UpdateTrust* trust,
                               DownloadControl& control)
{
    ListSearch search(running);
    if (!trust) {
        const CachedCopy copy(address, control);
        readInto(search, copy.path(), address);
        return search.offer();
    }

    const NumberPair key = keyOf(*trust);
    if (!isSecure(canonicalizeUrl(address)))
        refuse(OVOMSG_UPDATE_LIST_NOT_SECURE, address);
    const CachedCopy copy(address, control);
    const SignedFile file(copy.path()); // closed before the copy is deleted
    if (!file.isSignedBy(key, fetchSignature(address, control)))
        refuse(OVOMSG_UPDATE_LIST_ALTERED, address);
    readInto(search, copy.path(), address);
    if (wasIssuedBefore(search.issue(), trust->issue))
        refuse(OVOMSG_UPDATE_LIST_OLD, address);
    trust->issue = search.issue();
    return search.offer();
}

std::optional<AvailableUpdate> newerVersion(const std::wstring& address, const RunningProduct& running,
                                            UpdateTrust* trust, DownloadControl& control)
{
    const std::optional<Offer> offer = lastOffer(address, running, trust, control);
    if (!offer || !isNewer(*offer, running))
        return std::nullopt;
    return AvailableUpdate{offer->version, offer->description, offer->page};
}

RunningProduct runningProduct(const std::wstring& product, const std::wstring& options, const int version[4])
{
    RunningProduct running;
    running.product = product;
    running.options = options;
    std::copy_n(version, running.version.size(), running.version.begin());
    return running;
}

} // namespace ovoui::update

/// Update lists that are signed by the maker of the program.
///
///     UpdateTrust trust{kPublicKey, memory.issue()};
///     const auto update = findTrustedUpdate(address, product, options, version, trust);
///     memory.keepIssue(trust.issue);
#pragma once

#include <ovoui/export.h>
#include <ovoui/update/UpdateCheck.h>

#include <optional>
#include <string>

/// What a signed list is held against.
struct UpdateTrust
{
    /// The maker's public key for ECDSA on the curve P-256, as a text that begins with
    /// "-----BEGIN PUBLIC KEY-----".
    std::string publicKey;
    /// The highest number of a list that has been seen; empty before the first.
    std::wstring issue;
};

/// Does what `findUpdate` does with a list at an https address that is signed: `address` with ".sig" behind
/// it has the signature of the list's bytes, in DER. The number of the list is the UpdateVersion of its row
/// of the kind "#issue"; lists without a number are older than those with one. Sets `trust.issue` to the
/// number of a list that is accepted.
///
/// Throws OvoError also for an address without https, a list without a signature, an altered or older one,
/// and std::invalid_argument for a text that is no public key.
/// `product`, `options` and `version` are those of findUpdate.
OVOUI_API std::optional<AvailableUpdate> findTrustedUpdate(const std::wstring& address,
                                                           const std::wstring& product,
                                                           const std::wstring& options, const int version[4],
                                                           UpdateTrust& trust);

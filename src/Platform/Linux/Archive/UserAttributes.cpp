// SPDX-License-Identifier: MIT
#include "Platform/Linux/Archive/UserAttributes.h"

#include <sys/xattr.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <string_view>

namespace tessera {

namespace {

constexpr std::string_view kUserNamespace = "user.";

struct Bytes {
    int error = 0;
    std::string value;
};

/// Calls `read(buffer, size)` with room for what it said it has; anew when that has grown.
template <typename Read>
Bytes readWhole(const Read& read)
{
    Bytes result;
    while (true) {
        const ssize_t expected = read(nullptr, 0);
        if (expected <= 0) {
            result.error = expected < 0 ? errno : 0;
            return result;
        }
        result.value.resize(static_cast<std::size_t>(expected));
        const ssize_t length = read(result.value.data(), result.value.size());
        if (length >= 0) {
            result.value.resize(static_cast<std::size_t>(length));
            return result;
        }
        if (errno != ERANGE) {
            result.error = errno;
            return result;
        }
    }
}

Bytes readNames(int descriptor)
{
    Bytes names = readWhole(
        [&](char* buffer, std::size_t size) { return ::flistxattr(descriptor, buffer, size); });
    if (names.error == ENOTSUP || names.error == ENOSYS) {
        return {};
    }
    return names;
}

} // namespace

UserAttributes readUserAttributes(int descriptor)
{
    UserAttributes result;
    const Bytes names = readNames(descriptor);
    result.error = names.error;
    std::string_view rest = names.value;
    while (!rest.empty()) {
        const std::string name(rest.substr(0, rest.find('\0')));
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
        if (!name.starts_with(kUserNamespace)) {
            continue;
        }
        Bytes value = readWhole([&](char* buffer, std::size_t size) {
            return ::fgetxattr(descriptor, name.c_str(), buffer, size);
        });
        if (value.error == 0) {
            result.attributes.push_back(
                {name.substr(kUserNamespace.size()), std::move(value.value)});
        } else if (value.error != ENODATA) { // else it was removed meanwhile
            result.error = value.error;
        }
    }
    std::sort(result.attributes.begin(), result.attributes.end(), [](const auto& a, const auto& b) {
        return a.name < b.name;
    });
    return result;
}

} // namespace tessera

// SPDX-License-Identifier: MIT
#include "Base/PathHash.h"

namespace tessera {

PathHash::PathHash(std::string_view path)
{
    add(path);
    if (!path.ends_with('/')) {
        add("/");
    }
}

PathHash PathHash::of(std::string_view name) const
{
    PathHash inner = *this;
    inner.add(name);
    inner.add("/");
    return inner;
}

void PathHash::add(std::string_view bytes)
{
    constexpr std::uint64_t kPrime = 0x100000001b3;
    for (const char byte : bytes) {
        m_value = (m_value ^ static_cast<unsigned char>(byte)) * kPrime;
    }
}

} // namespace tessera

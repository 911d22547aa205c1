// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// A service as the main thread may ask it: what does not answer before anybody notices counts as
/// not there. A type of its own, so that none that waits as long as it takes gets in its place. The
/// service must outlive it.
template <typename Service>
class WithTimeLimit {
public:
    explicit WithTimeLimit(const Service& service)
        : m_service(&service)
    {
    }

    const Service& operator*() const { return *m_service; }
    const Service* operator->() const { return m_service; }

private:
    const Service* m_service;
};

} // namespace tessera

// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Files.h"

#include <sys/resource.h>
#include <unistd.h>

namespace deckforge {

/// In its scope, writing past this file size fails as on a full disk.
class FullDisk {
public:
    explicit FullDisk(qint64 room)
    {
        TakeSizeLimitAsFullDisk();
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small = {static_cast<rlim_t>(room), m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before = {};
};

/// In its scope, file permissions apply even if the tests run as root.
class NoPrivileges {
public:
    NoPrivileges()
    {
        constexpr uid_t nobody = 65534;
        if (m_before == 0)
            (void)!::seteuid(nobody);
    }
    ~NoPrivileges() { (void)!::seteuid(m_before); }

private:
    uid_t m_before = ::geteuid();
};

} // namespace deckforge

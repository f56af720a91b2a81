// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

namespace deckforge {

/// Owns a handle of a C library, and frees it with the given function.
template <class Handle>
using Owned = std::unique_ptr<Handle, void (*)(Handle*)>;

} // namespace deckforge

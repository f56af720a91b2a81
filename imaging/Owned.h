#pragma once

#include <memory>

namespace deckforge {

/// What a C library made, with the function that frees it.
template <class Handle>
using Owned = std::unique_ptr<Handle, void (*)(Handle*)>;

} // namespace deckforge

// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "editor/Page.h"

#include <memory>

namespace deckforge {

struct EditorParts;

std::unique_ptr<Page> MakeStandardPage(EditorParts& parts, QWidget* parent);
std::unique_ptr<Page> MakeLargePage(EditorParts& parts, QWidget* parent);
std::unique_ptr<Page> MakeCharacterPage(EditorParts& parts, QWidget* parent);
std::unique_ptr<Page> MakeBackPage(EditorParts& parts, QWidget* parent);

} // namespace deckforge

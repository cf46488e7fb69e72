#pragma once

#include "window/actions/actions.h"

#include <span>

namespace window {

// The table from which Actions creates the actions of a window.

/// When a command is enabled.
enum Need : quint8 { Always, Label };
/// A choice has a check mark.
enum Kind : quint8 { Command, Choice };

/// One command.
struct ActionRow
{
    ActionId id;
    MenuId menu;
    const char* text; // to be translated, as the hint
    const char* keys; // several are separated by "; "
    IconName icon;
    Need need;
    Kind kind;
    const char* hint;
};

/// All commands, in the order of the menus.
[[nodiscard]] std::span<const ActionRow> actionRows();

} // namespace window

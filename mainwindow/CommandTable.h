#pragma once

#include <array>
#include <cstdint>
#include <span>

// The one table of everything that can be commanded: the menus and their shortcuts are made from
// it, and each row runs its command.  The toolbar names commands of it (ToolbarTable.h).

// The platform's virtual keys that have no character.
namespace Key {
inline constexpr std::uint8_t Shift = 0x10;
inline constexpr std::uint8_t Control = 0x11;
inline constexpr std::uint8_t Delete = 0x2E;
inline constexpr std::uint8_t F1 = 0x70;
inline constexpr std::uint8_t F3 = 0x72;
} // namespace Key

// Where the focus must be for a shortcut to be taken.
enum class ShortcutReach : std::uint8_t {
    Everywhere,
    OutsideText, // not while text is typed, which needs the key itself
    ListOnly     // anywhere else the user is not looking at what the command would change
};

struct Shortcut {
    bool ctrl = false;
    bool shift = false;
    std::uint8_t key = 0; // virtual key; 0: no shortcut
    ShortcutReach reach = ShortcutReach::Everywhere;
};

struct MainCommands;
using CommandHandler = void (*)(const MainCommands&);

enum class MenuKind : std::uint8_t { Title, Submenu, Entry, SubmenuEntry, Separator };

enum class CommandKind : std::uint8_t {
    Plain,
    Reports,  // shows how it went in the status panel, which is empty when it begins
    Operation // as Reports, and calls SolidWorks: nothing else is commanded until it is over
};

struct MenuRow {
    int command;
    const char* name;
    const char* caption; // built in, German; the language file replaces it
    MenuKind place;
    CommandHandler run = nullptr; // of an entry
    CommandKind kind = CommandKind::Plain;
    Shortcut shortcut{};
    Shortcut otherShortcut{}; // does the same; not shown in the menu
    bool isStep = false;      // changes the libraries: can be taken back
};

// Menu titles, each followed by its entries, in order.
[[nodiscard]] std::span<const MenuRow> MenuRows() noexcept;

// The row of an entry, or of a button that has a command and no entry; null: the number is none's.
[[nodiscard]] const MenuRow* FindCommand(int command) noexcept;

// The keys of the shortcuts that have a name in each language.
struct KeyRow {
    std::uint8_t key;
    const char* name;
    const char* caption; // built in, German; the language file replaces it
};

inline constexpr std::array kKeyRows = {
    KeyRow{Key::Control, "keyCtrl", "Strg"},
    KeyRow{Key::Shift, "keyShift", "Umschalt"},
    KeyRow{Key::Delete, "keyDelete", "Entf"},
};

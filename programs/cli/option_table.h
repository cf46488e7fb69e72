#pragma once

#include <QString>
#include <QStringList>

#include <span>

/// The commands and their options: one table for the parsers, the help, the shells' completion and
/// the manual page.
namespace cli {

/// What a shell completes.
enum class Completion {
    Nothing,
    Words,    ///< one of a list
    WordList, ///< one or several of a list, with commas
    Folder,
    File,
    Report, ///< *.json, *.html
    Label,
};

/// An option of the command line. Texts are in English and are translated when shown.
struct Option
{
    const char* name;  ///< without "--"
    const char* value; ///< name of the value; null for a switch
    const char* help;  ///< translated when shown
    Completion completion = Completion::Nothing;
    const char* words = ""; ///< with blanks
    bool isRepeatable = false;
    const char* letter = nullptr; ///< short name, without "-"
};

/// A command of labelport with its options.
struct Command
{
    const char* name;
    const char* summary;  ///< one line, in lower case
    const char* argument; ///< as the usage shows it: "FILE..."; null if there is none
    const char* argumentHelp;
    Completion completion;   ///< of the arguments
    const char* description; ///< with examples
    std::span<const Option> options;
};

/// All commands, in the order of --help.
[[nodiscard]] std::span<const Command> commands();
/// The command of a name, which must exist.
[[nodiscard]] const Command& commandOf(const char* name);
[[nodiscard]] QStringList commandNames();
/// A text of the table in the language of the user.
[[nodiscard]] QString translated(const char* text);

} // namespace cli

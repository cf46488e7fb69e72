// Writes the shells' completion and the manual page of labelport from the option table.
//
// labelport_shell_files TEMPLATES OUTPUT
//
// Each file *.in of the folder TEMPLATES becomes a file of the folder OUTPUT; a line @NAME@ in it
// is replaced by generated lines.

#include "cli/option_table.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSaveFile>

#include <cstdio>

namespace {

using namespace Qt::StringLiterals;

/// The help up to its first full stop or semicolon, without a default.
QString shortHelp(const cli::Option& option)
{
    const QString help = QString::fromLatin1(option.help);
    const qsizetype end = help.indexOf(QRegularExpression(u"[.;:] | \\(|\\.$|, such"_s));
    return help.left(end);
}

QString joined(const QStringList& lines)
{
    return lines.join(u'\n');
}

/// The options of a command as "--to --dpi", with --help.
QString optionNames(const cli::Command& command)
{
    QString names;
    for (const cli::Option& option : command.options) {
        names += u"--"_s + QLatin1String(option.name) + u' ';
    }
    return names + u"--help"_s;
}

QString kindOf(cli::Completion completion)
{
    switch (completion) {
    case cli::Completion::Nothing:
        break;
    case cli::Completion::Words:
        return u"words"_s;
    case cli::Completion::WordList:
        return u"list"_s;
    case cli::Completion::Folder:
        return u"folder"_s;
    case cli::Completion::File:
    case cli::Completion::Report:
        return u"file"_s;
    case cli::Completion::Label:
        return u"label"_s;
    }
    return u"nothing"_s;
}

// --- bash

QString bashOptions()
{
    QStringList lines;
    for (const cli::Command& command : cli::commands()) {
        lines.append(
            u"    %1) echo '%2' ;;"_s.arg(QLatin1String(command.name), optionNames(command)));
    }
    return joined(lines);
}

/// What follows an option that has a value.
QString bashValues()
{
    QStringList lines;
    for (const cli::Command& command : cli::commands()) {
        for (const cli::Option& option : command.options) {
            if (option.value != nullptr) {
                lines.append(u"    %1:--%2) echo '%3 %4' ;;"_s.arg(
                    QLatin1String(command.name), QLatin1String(option.name),
                    kindOf(option.completion), QLatin1String(option.words)));
            }
        }
    }
    return joined(lines);
}

// --- zsh

QString zshQuoted(QString text)
{
    return text.replace(u'\'', u"'\\''"_s).replace(u'[', u'(').replace(u']', u')');
}

QString zshAction(cli::Completion completion, const QString& words, const QString& value)
{
    switch (completion) {
    case cli::Completion::Nothing:
        break;
    case cli::Completion::Words:
        return u"(%1)"_s.arg(words);
    case cli::Completion::WordList:
        return u"_values -s , %1 %2"_s.arg(value, words);
    case cli::Completion::Folder:
        return u"_files -/"_s;
    case cli::Completion::File:
        return u"_files"_s;
    case cli::Completion::Report:
        return u"_files -g \"*.(json|html)\""_s;
    case cli::Completion::Label:
        return u"_files -g \"*.(#i)(cnv|roc|qmtx|odt|odg|ott|otg|label)\""_s;
    }
    return {};
}

QString zshOption(const cli::Option& option)
{
    const QString value = QString::fromLatin1(option.value);
    const QString action =
        option.value == nullptr
            ? QString()
            : u":%1:%2"_s.arg(value,
                              zshAction(option.completion, QLatin1String(option.words), value));
    return u"        '%1--%2[%3]%4' \\"_s.arg(option.isRepeatable ? u"*"_s : QString(),
                                              QLatin1String(option.name),
                                              zshQuoted(shortHelp(option)), action);
}

QString zshCommands()
{
    QStringList lines;
    for (const cli::Command& command : cli::commands()) {
        lines.append(u"    '%1:%2'"_s.arg(QLatin1String(command.name),
                                          zshQuoted(QString::fromLatin1(command.summary))));
    }
    return joined(lines);
}

QString zshOptions()
{
    QStringList lines;
    for (const cli::Command& command : cli::commands()) {
        lines.append(QLatin1String(command.name) + u')');
        lines.append(u"    _arguments -s \\"_s);
        for (const cli::Option& option : command.options) {
            lines.append(zshOption(option));
        }
        // no translation: a completion script
        lines.append(u"        '--help[Show help]'%1"_s.arg(
            command.argument != nullptr ? u" \\"_s : QString()));
        if (command.argument != nullptr) {
            lines.append(u"        '*:file:%1'"_s.arg(zshAction(command.completion, {}, {})));
        }
        lines.append(u"    ;;"_s);
    }
    return joined(lines);
}

// --- fish

QString fishQuoted(QString text)
{
    return u'\'' + text.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s) + u'\'';
}

QString fishArguments(const cli::Option& option)
{
    switch (option.completion) {
    case cli::Completion::Nothing:
        return option.value != nullptr ? u" -x"_s : QString();
    case cli::Completion::Words:
    case cli::Completion::WordList:
        return u" -x -a "_s + fishQuoted(QLatin1String(option.words));
    case cli::Completion::Folder:
        return u" -x -a '(__fish_complete_directories)'"_s;
    case cli::Completion::File:
    case cli::Completion::Report:
    case cli::Completion::Label:
        break;
    }
    return u" -r"_s;
}

QString fishCommands()
{
    QStringList lines;
    for (const cli::Command& command : cli::commands()) {
        lines.append(
            u"complete -c labelport -f -n \"not __fish_seen_subcommand_from $commands\" -a %1 -d %2"_s
                .arg(QLatin1String(command.name),
                     fishQuoted(QString::fromLatin1(command.summary))));
    }
    return joined(lines);
}

QString fishOptions()
{
    QStringList lines;
    for (const cli::Command& command : cli::commands()) {
        for (const cli::Option& option : command.options) {
            const QString letter =
                option.letter != nullptr ? u" -s "_s + QLatin1String(option.letter) : QString();
            lines.append(
                u"complete -c labelport -n '__fish_seen_subcommand_from %1'%2 -l %3%4 -d %5"_s.arg(
                    QLatin1String(command.name), letter, QLatin1String(option.name),
                    fishArguments(option), fishQuoted(shortHelp(option))));
        }
    }
    return joined(lines);
}

// --- manual page

QString manualText(QString text)
{
    return text.replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s).replace(u'\n', u"\n.br\n"_s);
}

QString manualOptions(const cli::Command& command)
{
    QStringList lines;
    for (const cli::Option& option : command.options) {
        const QString letter =
            option.letter != nullptr ? u"-%1, "_s.arg(QLatin1String(option.letter)) : QString();
        const QString name = manualText(letter + u"--"_s + QLatin1String(option.name));
        lines.append(u".TP"_s);
        lines.append(option.value != nullptr ? u".BI \"%1\" \" %2\""_s.arg(
                                                   name, manualText(QLatin1String(option.value)))
                                             : u".B "_s + name);
        lines.append(manualText(QLatin1String(option.help)));
    }
    return joined(lines);
}

QHash<QString, QString> generatedLines()
{
    QHash<QString, QString> lines{
        {u"@COMMANDS@"_s,
         u"_labelport_commands='%1 --help --version'"_s.arg(cli::commandNames().join(u' '))},
        {u"@FISH_COMMAND_NAMES@"_s, u"set -l commands "_s + cli::commandNames().join(u' ')},
        {u"@BASH_OPTIONS@"_s, bashOptions()},
        {u"@BASH_VALUES@"_s, bashValues()},
        {u"@ZSH_COMMANDS@"_s, zshCommands()},
        {u"@ZSH_OPTIONS@"_s, zshOptions()},
        {u"@FISH_COMMANDS@"_s, fishCommands()},
        {u"@FISH_OPTIONS@"_s, fishOptions()},
    };
    for (const cli::Command& command : cli::commands()) {
        lines.insert(u"@MANUAL_%1@"_s.arg(QLatin1String(command.name)), manualOptions(command));
    }
    return lines;
}

bool fill(const QString& from, const QString& to, const QHash<QString, QString>& generated)
{
    QFile source(from);
    QSaveFile target(to);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly)) {
        return false;
    }
    for (const QString& line : QString::fromUtf8(source.readAll().trimmed()).split(u'\n')) {
        target.write((generated.value(line.trimmed(), line) + u'\n').toUtf8());
    }
    return target.commit();
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 3) {
        // no translation: for the build only
        std::fputs("Usage: labelport_shell_files TEMPLATES OUTPUT\n", stderr);
        return 2;
    }
    const QDir templates(QFile::decodeName(argv[1]));
    const QDir output(QFile::decodeName(argv[2]));
    output.mkpath(u"."_s);
    const QHash<QString, QString> generated = generatedLines();
    for (const QString& name : templates.entryList({u"*.in"_s}, QDir::Files)) {
        const QString result = output.filePath(name.chopped(3));
        if (!fill(templates.filePath(name), result, generated)) {
            // no translation: for the build only
            std::fprintf(stderr, "Cannot write %s\n", qPrintable(result));
            return 1;
        }
    }
    return 0;
}

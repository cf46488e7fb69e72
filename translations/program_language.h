#pragma once

#include <QProcessEnvironment>
#include <QStringList>
#include <QTranslator>

/// The language that a program speaks to people. What it writes for other programs - file names,
/// JSON, traces - has no language.
namespace translations {

/// The languages that an environment asks for, the best first, as "de_AT" or "de". Empty for
/// English: when nothing is asked for, when English or the C locale is, or from where in the list
/// one of them stands.
///
/// LANGUAGE is a list with colons and decides, then LC_ALL, LC_MESSAGES, LANG, of which the first
/// that is set counts. LC_ALL=C is for scripts and decides before LANGUAGE.
[[nodiscard]] QStringList preferredLanguages(const QProcessEnvironment& environment);

/// Writes down in the environment which language that is, so that programs that are started from
/// here speak it too, whatever becomes of the other variables.
void keepLanguage(const QStringList& languages);

/// As long as one lives, the application speaks a language; English where there are no
/// translations for any of those that are wanted. Needs an application object that outlives it.
class ProgramLanguage
{
public:
    explicit ProgramLanguage(const QStringList& languages);
    ~ProgramLanguage();

    ProgramLanguage(const ProgramLanguage&) = delete;
    ProgramLanguage& operator=(const ProgramLanguage&) = delete;

    /// "de", or "en" without translations.
    [[nodiscard]] QString name() const { return m_name; }

private:
    bool load(const QString& language);

    QString m_name = QLatin1String("en");
    QTranslator m_own;
    QTranslator m_toolkit; // buttons of dialogs, reasons why a file cannot be opened
};

} // namespace translations

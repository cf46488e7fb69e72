#include "translations/program_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace translations {

namespace {

/// "de_AT" of "de_AT.UTF-8@euro"; a locale's name says more than its language.
QString languageOf(const QString& locale)
{
    const qsizetype end = locale.indexOf(QLatin1Char('.'));
    const QString name = end < 0 ? locale : locale.left(end);
    return name.section(QLatin1Char('@'), 0, 0).replace(QLatin1Char('-'), QLatin1Char('_'));
}

bool isPlain(const QString& language)
{
    return language == QLatin1String("C") || language == QLatin1String("POSIX");
}

bool isEnglish(const QString& language)
{
    return isPlain(language) || language == QLatin1String("en") ||
           language.startsWith(QLatin1String("en_"));
}

/// The locale that messages are to be in.
QString messageLocale(const QProcessEnvironment& environment)
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString locale = environment.value(QLatin1String(variable));
        if (!locale.isEmpty()) {
            return locale;
        }
    }
    return QLocale::system().name(); // of systems that do not keep it in the environment
}

QStringList upToEnglish(const QStringList& languages)
{
    QStringList wanted;
    for (const QString& language : languages) {
        if (isEnglish(language)) {
            break;
        }
        if (!language.isEmpty()) {
            wanted.append(language);
        }
    }
    return wanted;
}

} // namespace

QStringList preferredLanguages(const QProcessEnvironment& environment)
{
    if (isPlain(environment.value(u"LC_ALL"_s))) {
        return {};
    }
    QStringList languages;
    for (const QString& each : environment.value(u"LANGUAGE"_s).split(QLatin1Char(':'))) {
        languages.append(languageOf(each));
    }
    languages.removeAll(QString());
    if (languages.isEmpty()) {
        languages.append(languageOf(messageLocale(environment)));
    }
    return upToEnglish(languages);
}

void keepLanguage(const QStringList& languages)
{
    qputenv("LANGUAGE",
            languages.isEmpty() ? QByteArray("en") : languages.join(QLatin1Char(':')).toUtf8());
}

ProgramLanguage::ProgramLanguage(const QStringList& languages)
{
    for (const QString& language : languages) {
        if (load(language)) {
            return;
        }
    }
    // The texts in the code are English; this adds their plural forms.
    if (m_own.load(u":/labelport/translations/labelport_en.qm"_s)) {
        QCoreApplication::installTranslator(&m_own);
    }
}

ProgramLanguage::~ProgramLanguage()
{
    QCoreApplication::removeTranslator(&m_own);
    QCoreApplication::removeTranslator(&m_toolkit);
}

bool ProgramLanguage::load(const QString& language)
{
    // Where there is none for "de_AT", this takes that for "de".
    if (!m_own.load(u":/labelport/translations/labelport_%1.qm"_s.arg(language))) {
        return false;
    }
    m_name = m_own.language();
    // An installation need not have the toolkit's translations; ours do without them.
    if (m_toolkit.load(u"qtbase_"_s + language,
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_toolkit);
    }
    QCoreApplication::installTranslator(&m_own);
    return true;
}

} // namespace translations

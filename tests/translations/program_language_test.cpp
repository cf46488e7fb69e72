// The language of a program, and how long it is installed.

#include "translations/program_language.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Case
{
    const char* name;
    QList<std::pair<const char*, const char*>> environment;
    QStringList languages;
};

const QList<Case> Cases{
    {"NothingAsked", {}, {}},
    {"CLocale", {{"LC_ALL", "C"}}, {}},
    {"CLocaleWithUtf8", {{"LANG", "C.UTF-8"}}, {}},
    {"English", {{"LANG", "en_GB.UTF-8"}}, {}},
    {"Lang", {{"LANG", "de_AT.UTF-8"}}, {u"de_AT"_s}},
    {"LangWithVariant", {{"LANG", "de_DE@euro"}}, {u"de_DE"_s}},
    {"MessagesBeforeLang", {{"LC_MESSAGES", "fr_FR.UTF-8"}, {"LANG", "de_DE.UTF-8"}}, {u"fr_FR"_s}},
    {"AllBeforeMessages",
     {{"LC_ALL", "de_DE.UTF-8"}, {"LC_MESSAGES", "fr_FR.UTF-8"}},
     {u"de_DE"_s}},
    {"EmptyCountsAsUnset", {{"LC_ALL", ""}, {"LANG", "fr"}}, {u"fr"_s}},
    {"NumbersDoNotMatter", {{"LC_NUMERIC", "de_DE.UTF-8"}, {"LANG", "C.UTF-8"}}, {}},
    {"LanguageDecides", {{"LANGUAGE", "fr"}, {"LANG", "de_DE.UTF-8"}}, {u"fr"_s}},
    {"LanguageAlone", {{"LANGUAGE", "de"}}, {u"de"_s}},
    {"LanguageIsAList", {{"LANGUAGE", "pl:de_CH:fr"}}, {u"pl"_s, u"de_CH"_s, u"fr"_s}},
    {"ListEndsAtEnglish", {{"LANGUAGE", "pl:en:de"}}, {u"pl"_s}},
    {"EnglishFirst", {{"LANGUAGE", "en_US:de"}, {"LANG", "de_DE.UTF-8"}}, {}},
    {"ScriptsWantC", {{"LC_ALL", "C"}, {"LANGUAGE", "de"}}, {}},
    {"EmptyLanguage", {{"LANGUAGE", "::"}, {"LANG", "fr_CA"}}, {u"fr_CA"_s}},
};

QProcessEnvironment environmentOf(const Case& each)
{
    QProcessEnvironment environment;
    for (const auto& [name, value] : each.environment) {
        environment.insert(QString::fromLatin1(name), QString::fromLatin1(value));
    }
    return environment;
}

QString openActionText()
{
    return QCoreApplication::translate("window::Actions", "&Open…");
}

TEST(PreferredLanguages, FollowTheEnvironment)
{
    for (const Case& each : Cases) {
        EXPECT_EQ(translations::preferredLanguages(environmentOf(each)), each.languages)
            << each.name;
    }
}

TEST(KeepLanguage, IsPassedToStartedPrograms)
{
    for (const QStringList& languages : {QStringList{u"de_AT"_s, u"fr"_s}, QStringList()}) {
        const QByteArray before = qgetenv("LANGUAGE");
        translations::keepLanguage(languages);
        QProcessEnvironment environment;
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.insert(u"LANGUAGE"_s, qEnvironmentVariable("LANGUAGE"));
        EXPECT_EQ(translations::preferredLanguages(environment), languages);
        qputenv("LANGUAGE", before);
    }
}

TEST(ProgramLanguage, TranslatesDuringItsLifetime)
{
    EXPECT_EQ(openActionText(), u"&Open…"_s);
    {
        const translations::ProgramLanguage language({u"de"_s});
        EXPECT_EQ(language.name(), u"de"_s);
        EXPECT_EQ(openActionText(), u"&Öffnen…"_s);
    }
    EXPECT_EQ(openActionText(), u"&Open…"_s);
}

TEST(ProgramLanguage, TakesTheFirstThatThereIs)
{
    const translations::ProgramLanguage language({u"pl"_s, u"fr_CA"_s, u"de"_s});
    EXPECT_EQ(language.name(), u"fr"_s);
    EXPECT_EQ(openActionText(), u"&Ouvrir…"_s);
}

TEST(ProgramLanguage, IsEnglishWithoutATranslation)
{
    for (const QStringList& languages : {QStringList(), QStringList{u"pl_PL"_s}}) {
        const translations::ProgramLanguage language(languages);
        EXPECT_EQ(language.name(), u"en"_s);
        EXPECT_EQ(openActionText(), u"&Open…"_s);
    }
}

} // namespace

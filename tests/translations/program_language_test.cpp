// The language of a program, and how long it is installed.

#include "translations/program_language.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

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
    {"Lang", {{"LANG", "de_AT.UTF-8"}}, {QStringLiteral("de_AT")}},
    {"LangWithVariant", {{"LANG", "de_DE@euro"}}, {QStringLiteral("de_DE")}},
    {"MessagesBeforeLang",
     {{"LC_MESSAGES", "fr_FR.UTF-8"}, {"LANG", "de_DE.UTF-8"}},
     {QStringLiteral("fr_FR")}},
    {"AllBeforeMessages",
     {{"LC_ALL", "de_DE.UTF-8"}, {"LC_MESSAGES", "fr_FR.UTF-8"}},
     {QStringLiteral("de_DE")}},
    {"EmptyCountsAsUnset", {{"LC_ALL", ""}, {"LANG", "fr"}}, {QStringLiteral("fr")}},
    {"NumbersDoNotMatter", {{"LC_NUMERIC", "de_DE.UTF-8"}, {"LANG", "C.UTF-8"}}, {}},
    {"LanguageDecides", {{"LANGUAGE", "fr"}, {"LANG", "de_DE.UTF-8"}}, {QStringLiteral("fr")}},
    {"LanguageAlone", {{"LANGUAGE", "de"}}, {QStringLiteral("de")}},
    {"LanguageIsAList",
     {{"LANGUAGE", "pl:de_CH:fr"}},
     {QStringLiteral("pl"), QStringLiteral("de_CH"), QStringLiteral("fr")}},
    {"ListEndsAtEnglish", {{"LANGUAGE", "pl:en:de"}}, {QStringLiteral("pl")}},
    {"EnglishFirst", {{"LANGUAGE", "en_US:de"}, {"LANG", "de_DE.UTF-8"}}, {}},
    {"ScriptsWantC", {{"LC_ALL", "C"}, {"LANGUAGE", "de"}}, {}},
    {"EmptyLanguage", {{"LANGUAGE", "::"}, {"LANG", "fr_CA"}}, {QStringLiteral("fr_CA")}},
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
    for (const QStringList& languages :
         {QStringList{QStringLiteral("de_AT"), QStringLiteral("fr")}, QStringList()}) {
        const QByteArray before = qgetenv("LANGUAGE");
        translations::keepLanguage(languages);
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("LANGUAGE"), qEnvironmentVariable("LANGUAGE"));
        EXPECT_EQ(translations::preferredLanguages(environment), languages);
        qputenv("LANGUAGE", before);
    }
}

TEST(ProgramLanguage, TranslatesDuringItsLifetime)
{
    EXPECT_EQ(openActionText(), QStringLiteral("&Open…"));
    {
        const translations::ProgramLanguage language({QStringLiteral("de")});
        EXPECT_EQ(language.name(), QStringLiteral("de"));
        EXPECT_EQ(openActionText(), QStringLiteral("&Öffnen…"));
    }
    EXPECT_EQ(openActionText(), QStringLiteral("&Open…"));
}

TEST(ProgramLanguage, TakesTheFirstThatThereIs)
{
    const translations::ProgramLanguage language(
        {QStringLiteral("pl"), QStringLiteral("fr_CA"), QStringLiteral("de")});
    EXPECT_EQ(language.name(), QStringLiteral("fr"));
    EXPECT_EQ(openActionText(), QStringLiteral("&Ouvrir…"));
}

TEST(ProgramLanguage, IsEnglishWithoutATranslation)
{
    for (const QStringList& languages : {QStringList(), QStringList{QStringLiteral("pl_PL")}}) {
        const translations::ProgramLanguage language(languages);
        EXPECT_EQ(language.name(), QStringLiteral("en"));
        EXPECT_EQ(openActionText(), QStringLiteral("&Open…"));
    }
}

} // namespace

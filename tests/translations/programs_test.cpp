// The programs as processes: messages depend on the language of the environment, outputs do not.

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Outcome
{
    int status = -1;
    QString out;
    QString err;
};

using Variables = QList<std::pair<const char*, const char*>>;

const Variables English{{"LC_ALL", "C"}};
const Variables German{{"LANGUAGE", "de"}, {"LC_ALL", "C.UTF-8"}};
const Variables French{{"LC_ALL", "fr_FR.UTF-8"}}; // which need not be installed

const QString Labelport = QStringLiteral(LABELPORT_PROGRAM);
const QString Trace = QStringLiteral(LABELPORT_TRACE_PROGRAM);
const QString Workbench = QStringLiteral(LABELPORT_WORKBENCH_PROGRAM);
const QString Sample = QStringLiteral(LABELPORT_SAMPLES "/tavrel/asset_tag_2000020.cnv");
const QString Missing = u"missing.odg"_s;

class Programs : public ::testing::Test
{
protected:
    Outcome run(const QString& program, const QStringList& arguments, const Variables& variables)
    {
        QProcessEnvironment environment;
        environment.insert(u"HOME"_s, m_folder.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"ASAN_OPTIONS"_s, qEnvironmentVariable("ASAN_OPTIONS"));
        for (const auto& [name, value] : variables) {
            environment.insert(QString::fromLatin1(name), QString::fromLatin1(value));
        }
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.start(program, arguments, QIODevice::ReadOnly);
        EXPECT_TRUE(process.waitForFinished(120'000)) << qPrintable(program);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QByteArray contentOf(const QString& name)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return file.readAll();
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(Programs, SayWhatTheyAreFor)
{
    const QStringList help{u"--help"_s};
    struct Row
    {
        QString program;
        const char* english;
        const char* german;
        const char* french;
    };
    for (const Row& row : {Row{Labelport, "Imports legacy label templates",
                               "Importiert alte Etikettenvorlagen", "Importe d’anciens modèles"},
                           Row{Trace, "Imports a legacy label", "Importiert ein altes Etikett",
                               "Importe une ancienne étiquette"},
                           Row{Workbench, "Opens legacy label templates",
                               "Öffnet alte Etikettenvorlagen", "Ouvre d’anciens modèles"}}) {
        SCOPED_TRACE(qPrintable(row.program));
        EXPECT_TRUE(run(row.program, help, English).out.contains(QString::fromUtf8(row.english)));
        EXPECT_TRUE(run(row.program, help, {}).out.contains(QString::fromUtf8(row.english)));
        EXPECT_TRUE(run(row.program, help, German).out.contains(QString::fromUtf8(row.german)));
        EXPECT_TRUE(run(row.program, help, French).out.contains(QString::fromUtf8(row.french)));
    }
}

TEST_F(Programs, SayWhatIsWrong)
{
    const QStringList import{u"import"_s, Missing};
    EXPECT_TRUE(run(Labelport, import, English).err.contains(u"The file does not exist."));
    EXPECT_TRUE(run(Labelport, import, German).err.contains(u"Es gibt keine solche Datei."));
    EXPECT_TRUE(run(Labelport, import, French).err.contains(u"Ce fichier n’existe pas."));

    EXPECT_TRUE(run(Trace, {Missing}, English).err.contains(u"Cannot read \"missing.odg\": "));
    EXPECT_TRUE(
        run(Trace, {Missing}, German).err.contains(u"„missing.odg“ kann nicht gelesen werden: "));

    const QStringList two{u"a.odg"_s, u"b.odg"_s};
    EXPECT_TRUE(run(Workbench, two, English)
                    .err.contains(u"A window shows one label, but 2 files were given."));
    EXPECT_TRUE(
        run(Workbench, two, German)
            .err.contains(u"Ein Fenster zeigt ein Etikett, es wurden aber 2 Dateien angegeben."));
}

TEST_F(Programs, TranslateToALanguageThatTheLocalesEncodingLacks)
{
    const Outcome outcome = run(Labelport, {u"import"_s, Missing}, {{"LANG", "de_DE.ISO-8859-1"}});
    EXPECT_TRUE(outcome.err.contains(u"Es gibt keine solche Datei.")) << qPrintable(outcome.err);
}

TEST_F(Programs, MakeTheSameFilesInEveryLanguage)
{
    const auto import = [&](const char* folder, const Variables& variables) {
        const Outcome outcome = run(Labelport,
                                    {u"import"_s, Sample, u"--to"_s, u"svg,label"_s,
                                     u"--output-dir"_s, QString::fromLatin1(folder)},
                                    variables);
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
        return outcome.out;
    };
    EXPECT_EQ(import("plain", English),
              import("german", German).replace(QLatin1String("german"), QLatin1String("plain")));
    for (const char* name : {"asset_tag_2000020.svg", "asset_tag_2000020.label"}) {
        EXPECT_EQ(contentOf(u"plain/"_s + QLatin1String(name)),
                  contentOf(u"german/"_s + QLatin1String(name)))
            << name;
    }
}

TEST_F(Programs, WriteTheSameDataInEveryLanguage)
{
    // The import of this one prints a message.
    const QString sample = QStringLiteral(LABELPORT_SAMPLES "/tavrel/member_card_2000024.cnv");
    const QStringList inspect{u"inspect"_s, sample, u"--json"_s};
    const QStringList formats{u"formats"_s, u"--json"_s};
    for (const QStringList& command : {inspect, formats}) {
        const QString plain = run(Labelport, command, English).out;
        EXPECT_TRUE(plain.startsWith(u'{')) << qPrintable(plain);
        EXPECT_EQ(plain, run(Labelport, command, German).out);
    }
    const auto report = [&](const char* name, const Variables& variables) {
        const QString file = QString::fromLatin1(name);
        EXPECT_EQ(
            run(Labelport,
                {u"import"_s, sample, u"--to"_s, u"label"_s, u"--force"_s, u"--report"_s, file},
                variables)
                .status,
            0);
        return contentOf(file);
    };
    const QByteArray plain = report("plain.json", English);
    EXPECT_TRUE(plain.contains("The database is no longer connected"));
    EXPECT_EQ(plain, report("german.json", German));
    EXPECT_TRUE(report("german.html", German).contains("lang=\"de\""));
}

TEST_F(Programs, TraceTheSameInEveryLanguage)
{
    // This one opens a message box, whose text is in the trace.
    const QString sample = QStringLiteral(LABELPORT_SAMPLES "/tavrel/member_card_2000024.cnv");
    const Outcome plain = run(Trace, {sample}, English);
    EXPECT_EQ(plain.status, 0) << qPrintable(plain.err);
    EXPECT_TRUE(plain.out.contains(u"Warning: Import issues."));
    EXPECT_EQ(plain.out, run(Trace, {sample}, German).out);
    EXPECT_EQ(plain.out, run(Trace, {sample}, French).out);
}

} // namespace

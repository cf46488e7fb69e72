// Every sample is imported whole and its trace compared with the reference beside this
// file. A new sample is a new row: run update_traces.sh, look at the trace that it makes,
// and commit both.
//
// Each import has a process of its own, because the z values of the binary reader come
// from a number that runs on through the whole process.

#include "line_difference.h"
#include "program_runner.h"
#include "trace_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <cctype>
#include <ostream>
#include <string>
#include <vector>

using namespace Qt::Literals::StringLiterals;

void PrintTo(const TracedSample& sample, std::ostream* out)
{
    *out << qPrintable(sample.name);
}

namespace {

TraceFolders folders()
{
    return {QStringLiteral(LABELPORT_SAMPLES), QStringLiteral(LABELPORT_REFERENCES)};
}

std::vector<TracedSample> allSamples()
{
    const QList<TracedSample> samples = folders().samples();
    return {samples.begin(), samples.end()};
}

/// The locale of the test program, and nothing else of its environment.
QProcessEnvironment environmentWithLocale()
{
    QProcessEnvironment environment = emptyEnvironment();
    environment.insert(u"LC_ALL"_s, qEnvironmentVariable("LC_ALL", u"C.UTF-8"_s));
    return environment;
}

QString keepActual(const QString& name, const QByteArray& trace)
{
    const QString path = QStringLiteral(LABELPORT_ACTUAL_TRACES "/%1.jsonl").arg(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(trace);
    return path;
}

class WholeFile : public ::testing::TestWithParam<TracedSample>
{};

TEST_P(WholeFile, GivesItsTrace)
{
    const TracedSample& sample = GetParam();
    const ProgramResult result = runProgram(QStringLiteral(LABELPORT_TRACE_PROGRAM),
                                            {sample.samplePath}, environmentWithLocale());
    ASSERT_TRUE(result.finished) << result.errors.constData();
    const bool imported = result.output.endsWith("{\"result\":true}\n");
    EXPECT_EQ(result.status, imported ? 0 : 1) << result.errors.constData();

    QFile reference(sample.referencePath);
    const bool hasReference = reference.open(QIODevice::ReadOnly);
    const QByteArray expected = hasReference ? reference.readAll() : QByteArray();
    if (hasReference && expected == result.output) {
        return;
    }
    const QString actualPath = keepActual(sample.name, result.output);
    ASSERT_TRUE(hasReference) << "no reference " << qPrintable(sample.referencePath)
                              << "; the trace is in " << qPrintable(actualPath);
    FAIL() << qPrintable(firstDifference(expected, result.output)) << "the whole trace is in "
           << qPrintable(actualPath);
}

std::string rowName(const ::testing::TestParamInfo<TracedSample>& info)
{
    std::string name = info.param.name.toStdString();
    for (char& letter : name) {
        const bool plain = std::isalnum(static_cast<unsigned char>(letter)) != 0;
        letter = plain ? letter : '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Samples, WholeFile, ::testing::ValuesIn(allSamples()), rowName);

TEST(WholeFiles, ThereIsASampleForEveryReader)
{
    QStringList readers;
    for (const TracedSample& sample : folders().samples()) {
        readers.append(sample.name.section(u'/', 0, 0));
    }
    readers.removeDuplicates();
    EXPECT_EQ(readers, (QStringList{u"opendocument"_s, u"orvanta"_s, u"tavrel"_s}));
}

TEST(WholeFiles, NoReferenceHasLostItsSample)
{
    EXPECT_EQ(folders().orphans(), QStringList());
}

} // namespace

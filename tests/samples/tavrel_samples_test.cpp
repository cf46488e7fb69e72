// The committed sample labels, held against the program that makes them.

#include "samples/tavrel/sample_labels.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype largestSample = 60 * 1024;

QByteArray committed(const QString& fileName)
{
    QFile file(QDir(QStringLiteral(SAMPLES)).filePath(fileName));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fileName.toStdString();
    return file.readAll();
}

// The compression of a picture depends on the system's PNG library; the bytes before it do not.
QByteArray upToPicture(const QByteArray& content)
{
    const qsizetype picture = content.indexOf("\x89PNG");
    return picture < 0 ? content : content.left(picture);
}

TEST(TavrelSamples, AreWhatTheirProgramWrites)
{
    for (const SampleLabel& label : sampleLabels()) {
        const QByteArray content = committed(label.fileName);
        EXPECT_TRUE(upToPicture(content) == upToPicture(label.content))
            << label.fileName.toStdString() << " is out of date: run make_tavrel_samples";
        EXPECT_LT(content.size(), largestSample);
    }
}

TEST(TavrelSamples, EachHasATest)
{
    QStringList names;
    for (const SampleLabel& label : sampleLabels()) {
        names.append(label.fileName);
    }
    names.sort();
    EXPECT_EQ(
        QDir(QStringLiteral(SAMPLES)).entryList({u"*.cnv"_s, u"*.roc"_s}, QDir::Files, QDir::Name),
        names);
}

TEST(TavrelSamples, CoverEveryVersion)
{
    QSet<quint32> versions;
    for (const SampleLabel& label : sampleLabels()) {
        const auto version = qFromBigEndian<quint32>(label.content.constData() + 4);
        EXPECT_TRUE(label.fileName.contains(QString::number(version)));
        versions.insert(version);
    }
    for (quint32 version = 2000016; version <= 2000024; ++version) {
        EXPECT_TRUE(versions.contains(version)) << version;
    }
}

} // namespace

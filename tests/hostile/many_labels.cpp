#include "tests/hostile/many_labels.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// Where the damage begins: after the bytes that identify the format.
constexpr qsizetype StartKept = 8;

QStringList samplesIn(const QString& folder)
{
    QStringList files;
    QDirIterator walk(folder, {u"*.cnv"_s, u"*.roc"_s, u"*.qmtx"_s, u"*.od?"_s}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        files.append(walk.next());
    }
    files.sort();
    return files;
}

QByteArray read(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QByteArray changed(QByteArray bytes, quint32& noise, int changes)
{
    for (int i = 0; i < changes; ++i) {
        noise = noise * 1664525U + 1013904223U;
        const auto span = quint32(bytes.size() - StartKept);
        bytes[StartKept + qsizetype((noise >> 8) % span)] = char(noise >> 24);
    }
    return bytes;
}

} // namespace

ManyLabels::ManyLabels(const QString& samples)
{
    const QStringList files = samplesIn(samples);
    for (const QString& path : files) {
        addWithDamage(path);
    }
    add(u"empty.cnv"_s, {});
    add(u"empty.odg"_s, {});
    add(u"other.qmtx"_s, read(files.first()));
}

void ManyLabels::add(const QString& name, const QByteArray& bytes)
{
    const QString path = m_folder.filePath(name);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    m_labels.append({path, readerForFile(path)});
}

void ManyLabels::addWithDamage(const QString& path)
{
    const QByteArray whole = read(path);
    const QString name = QFileInfo(path).fileName();
    add(name, whole);
    add(u"cut_"_s + name, whole.left(whole.size() * 2 / 3));
    add(u"spoilt_"_s + name, changed(whole, m_noise, 1));
    add(u"wrecked_"_s + name, changed(whole, m_noise, 20));
}

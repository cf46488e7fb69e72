#pragma once

#include "tests/tavrel/bytes.h"

#include <QImage>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace tavrel_test {

/// Values of the records before the items, for tests to set.
struct LabelPage
{
    qint32 labelType = -1;
    qint32 ribbonType = -1;
    bool canvasFlag = true;
    qint32 orientationCode = 0;
    double resolutionX = 300.0; ///< both resolutions are stored since 2000024
    double resolutionY = 305.0;
    qint32 sequenceStart = 10;
};

/// The bytes of a label of one version, record by record. Values that a test does not
/// set have ordinary defaults.
class LabelFile
{
public:
    /// Starts with header, preview, a page of 4 by 2 inches, a counter and no database.
    explicit LabelFile(quint32 version = 2000024, const QStringList& databases = {},
                       const LabelPage& page = {});

    LabelFile& shape(const QString& name, double layer = 1.0);
    LabelFile& picture(const QByteArray& png, const QString& width = u"25/6"_s,
                       const QString& height = u"25/6"_s);
    /// @param scale the header's width and height; any value but "1" causes a note
    LabelFile& text(const QString& content, const QString& scale = u"1"_s, const QString& key = {},
                    const QString& sourceText = {});
    LabelFile& barcode(bool linear, qint32 symbology, const QString& key = {});
    LabelFile& symbol(const QString& name, const QByteArray& svg = {});
    LabelFile& empty();
    LabelFile& typeCode(qint32 code);
    LabelFile& raw(const QByteArray& bytes);

    [[nodiscard]] const QByteArray& bytes() const { return m_bytes.bytes(); }
    /// The file's size after each item record so far.
    [[nodiscard]] const QList<qsizetype>& recordEnds() const { return m_recordEnds; }

private:
    void itemHeader(double layer = 1.0, const QString& width = u"1"_s,
                    const QString& height = u"1"_s);
    void canvasRecord(const LabelPage& page);
    void textLook();
    LabelFile& recordEnd();

    quint32 m_version;
    Bytes m_bytes;
    QList<qsizetype> m_recordEnds;
};

/// A PNG of one color, size 1 by 1 pixel at least.
[[nodiscard]] QByteArray pngOf(int width, int height, QImage::Format format = QImage::Format_RGB32);

} // namespace tavrel_test

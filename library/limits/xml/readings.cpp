#include "limits/xml/readings.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

namespace xmlbounds {

namespace {

constexpr char ByteOrderMark[] = "\xef\xbb\xbf";

// Encodings in which the characters of markup are the bytes of ASCII and no other bytes.
bool writesMarkupAsAscii(const QString& name)
{
    const QString lower = name.toLower();
    static constexpr QLatin1StringView Exact[] = {
        QLatin1StringView("utf-8"), QLatin1StringView("utf8"), QLatin1StringView("us-ascii"),
        QLatin1StringView("ascii")};
    for (const QLatin1StringView exact : Exact) {
        if (lower == exact) {
            return true;
        }
    }
    static constexpr QLatin1StringView Families[] = {QLatin1StringView("iso-8859-"),
                                                     QLatin1StringView("windows-125")};
    for (const QLatin1StringView family : Families) {
        bool isNumber = false;
        if (lower.startsWith(family) && lower.size() <= family.size() + 2) {
            lower.sliced(family.size()).toUShort(&isNumber);
        }
        if (isNumber) {
            return true;
        }
    }
    return false;
}

// The encoding that the document's own declaration names; empty for none.
QString declaredEncoding(const QByteArray& utf8)
{
    const qsizetype start =
        utf8.startsWith(ByteOrderMark) ? qsizetype(sizeof ByteOrderMark) - 1 : 0;
    const qsizetype end = utf8.indexOf("?>", start);
    if (end < 0 || utf8.mid(start, 5) != "<?xml") {
        return {};
    }
    QXmlStreamReader reader(QString::fromUtf8(utf8.mid(start, end + 2 - start)));
    reader.readNext();
    return reader.documentEncoding().toString();
}

QByteArray decoded(QStringDecoder decoder, const QByteArray& bytes)
{
    const QString text = decoder(bytes);
    return text.toUtf8();
}

} // namespace

QList<QByteArray> readingsOf(const QByteArray& bytes)
{
    QList<QByteArray> readings{bytes};
    const auto detected = QStringConverter::encodingForData(bytes, u'<');
    if (detected && *detected != QStringConverter::Utf8) {
        readings.append(decoded(QStringDecoder(*detected), bytes));
    }
    const QString declared = declaredEncoding(readings.last());
    if (!declared.isEmpty() && !writesMarkupAsAscii(declared)) {
        QStringDecoder decoder(declared.toLatin1().constData());
        if (decoder.isValid()) {
            readings.append(decoded(std::move(decoder), bytes));
        }
    }
    return readings;
}

} // namespace xmlbounds

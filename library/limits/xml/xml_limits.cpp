#include "limits/xml/xml_limits.h"

#include <QDomDocument>
#include <QList>
#include <QStringDecoder>
#include <QXmlStreamReader>

namespace xmllimits {

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

// The encoding that the document's declaration names; empty for none.
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

// The texts, as UTF-8, that a parser may see in the bytes. The usual document has one, which
// shares the memory of the bytes.
QList<QByteArray> candidateDecodings(const QByteArray& bytes)
{
    QList<QByteArray> candidates{bytes};
    const auto detected = QStringConverter::encodingForData(bytes, u'<');
    if (detected && *detected != QStringConverter::Utf8) {
        candidates.append(decoded(QStringDecoder(*detected), bytes));
    }
    const QString declared = declaredEncoding(candidates.last());
    if (!declared.isEmpty() && !writesMarkupAsAscii(declared)) {
        QStringDecoder decoder(declared.toLatin1().constData());
        if (decoder.isValid()) {
            candidates.append(decoded(std::move(decoder), bytes));
        }
    }
    return candidates;
}

} // namespace

std::optional<ParseFailure> exceededLimit(const QByteArray& bytes, qint64 treeBytes,
                                          const TreeCosts& costs)
{
    for (const QByteArray& utf8 : candidateDecodings(bytes)) {
        if (const auto excess = findExcess(utf8, treeBytes, costs)) {
            const Position position = positionOf(utf8, excess->offset);
            return ParseFailure{excess->message, position.line, position.column};
        }
    }
    return std::nullopt;
}

std::optional<ParseFailure> parseDocument(const QByteArray& bytes, QDomDocument& document,
                                          qint64 treeBytes)
{
    document = QDomDocument();
    if (auto excess = exceededLimit(bytes, treeBytes, DomCosts)) {
        return excess;
    }
    ParseFailure failure;
    int line = 0;
    int column = 0;
    if (document.setContent(bytes, false, &failure.message, &line, &column)) {
        return std::nullopt;
    }
    document = QDomDocument();
    failure.line = line;
    failure.column = column;
    return failure;
}

} // namespace xmllimits

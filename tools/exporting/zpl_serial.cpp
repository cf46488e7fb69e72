#include "exporting/zpl_serial.h"

#include <algorithm>

namespace exporting {
namespace {

/// The digits of a text that change, as position and length.
struct Digits
{
    qsizetype start = 0;
    qsizetype length = 0;

    [[nodiscard]] QString fixedPart(const QString& text) const
    {
        return text.left(start) + text.mid(start + length);
    }
    [[nodiscard]] qint64 valueIn(const QString& text) const
    {
        return text.mid(start, length).toLongLong();
    }
};

/// The digits around the first difference of two texts.
Digits changingDigits(const QString& one, const QString& other)
{
    const auto isDigit = [&one](qsizetype at) {
        return at >= 0 && at < one.size() && one.at(at) >= u'0' && one.at(at) <= u'9';
    };
    qsizetype first = 0;
    while (first < std::min(one.size(), other.size()) && one.at(first) == other.at(first)) {
        ++first;
    }
    qsizetype end = first;
    while (isDigit(end)) {
        ++end;
    }
    while (isDigit(first - 1)) {
        --first;
    }
    return {first, end - first};
}

} // namespace

QByteArray serialization(const QStringList& texts)
{
    constexpr qsizetype mostDigits = 12;
    if (texts.size() < 2) {
        return {};
    }
    const QString& first = texts.constFirst();
    const Digits digits = changingDigits(first, texts.at(1));
    const qint64 start = digits.valueIn(first);
    const qint64 step = digits.valueIn(texts.at(1)) - start;
    if (digits.length < 1 || digits.length > mostDigits || step < 1) {
        return {};
    }
    for (qsizetype index = 0; index < texts.size(); ++index) {
        const QString& text = texts.at(index);
        if (text.size() != first.size() || digits.fixedPart(text) != digits.fixedPart(first) ||
            digits.valueIn(text) != start + index * step) {
            return {};
        }
    }
    const QByteArray after(first.size() - digits.start - digits.length, '%');
    return QByteArray(digits.start, '%') + QByteArray(digits.length, 'd') + after + ',' +
           QByteArray::number(step) + after;
}

} // namespace exporting

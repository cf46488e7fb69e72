#include "line_difference.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype LinesBefore = 2;
constexpr qsizetype LinesAfter = 4;

qsizetype commonLines(const QStringList& one, const QStringList& other)
{
    const auto end = std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first;
    return end - one.begin();
}

QString marked(const QStringList& lines, qsizetype from, const QString& mark)
{
    QString text;
    for (const QString& line : lines.mid(from, LinesAfter)) {
        text += mark + line + u'\n';
    }
    return text;
}

} // namespace

QString firstDifference(const QByteArray& expected, const QByteArray& actual)
{
    if (expected == actual) {
        return {};
    }
    const QStringList wanted = QString::fromUtf8(expected).split(u'\n');
    const QStringList came = QString::fromUtf8(actual).split(u'\n');
    const qsizetype same = commonLines(wanted, came);
    QString text = u"line %1 (%2 lines expected, %3 came)\n"_s.arg(same + 1)
                       .arg(wanted.size() - 1)
                       .arg(came.size() - 1);
    const qsizetype first = std::max<qsizetype>(0, same - LinesBefore);
    for (const QString& line : wanted.mid(first, same - first)) {
        text += u"  "_s + line + u'\n';
    }
    return text + marked(wanted, same, u"- "_s) + marked(came, same, u"+ "_s);
}

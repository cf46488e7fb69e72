#pragma once

#include "migration/model/file_report.h"

#include <random>

using namespace Qt::Literals::StringLiterals;

/// A report with random content, including texts that are hard to write.
[[nodiscard]] inline QString randomText(std::mt19937& random)
{
    static const QStringList pieces = {
        u"plain"_s,
        u"</script><b>"_s,
        u"\"'&<>"_s,
        u"%1 %2 %%"_s,
        u"\n\t"_s,
        QString(QChar(u'\0')),
        u"Zürich 日本"_s,
        u"\U0001F600"_s,
        u"]]>--"_s,
        u"\\u0022"_s,
        QString(QChar(0x202E)),
        QString(),
    };
    QString text;
    const auto count = random() % 4;
    for (unsigned index = 0; index < count; ++index) {
        text += pieces.at(static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size())));
    }
    return text;
}

template <class Value, class Make>
[[nodiscard]] QList<Value> randomList(std::mt19937& random, Make make)
{
    QList<Value> values;
    const auto count = random() % 4;
    for (unsigned index = 0; index < count; ++index) {
        values.append(make());
    }
    return values;
}

[[nodiscard]] inline migration::FileReport randomReport(std::mt19937& random)
{
    using namespace migration;
    const auto text = [&random] { return randomText(random); };
    const auto number = [&random] { return static_cast<int>(random() % 2'000'000) - 1; };
    const auto length = [&random] { return static_cast<double>(random()) / 1000.0 - 1e6; };
    const auto finding = [&] {
        Finding made{text(), text(), number(), random() % 2 == 0,
                     randomList<QString>(random, text)};
        if (random() % 2 == 0) {
            made.places =
                FindingPlaces{randomList<int>(random, number), randomList<QRectF>(random, [&] {
                                  return QRectF(length(), length(), length(), length());
                              })};
        }
        return made;
    };
    const auto kind = [&] { return KindCount{text(), number()}; };
    FileReport report;
    report.file = text();
    report.bytes = qint64(random()) * 100'000;
    report.status = static_cast<Status>(random() % 5);
    report.error = text();
    report.reader = text();
    report.page.width = length();
    report.page.height = length();
    if (random() % 2 == 0) {
        report.objects.inFile = number();
    }
    report.objects.unknown = text();
    report.objects.imported = number();
    report.items = randomList<KindCount>(random, kind);
    report.complete = randomList<KindCount>(random, kind);
    report.changed = randomList<Finding>(random, finding);
    report.lost = randomList<Finding>(random, finding);
    report.repaired = randomList<RepairReport>(random, [&] {
        return RepairReport{text(), text(), number()};
    });
    report.datasources = randomList<SourceReport>(random, [&] {
        return SourceReport{number(), text(), randomList<QString>(random, text), text()};
    });
    report.issues = randomList<IssueReport>(random, [&] {
        return IssueReport{text(), number(), number()};
    });
    report.preview = QByteArray("preview");
    report.thumbnail = text().toUtf8();
    report.outputs = randomList<QString>(random, text);
    report.exports = randomList<ExportReport>(random, [&] {
        return ExportReport{text(), text(), text(), text(), number()};
    });
    report.sandbox = random() % 2 == 0 ? QStringList() : QStringList{u"files"_s};
    report.itemList = randomList<ItemReport>(random, [&] {
        return ItemReport{text(), length(), length(), length(), length(), text(), number()};
    });
    return report;
}

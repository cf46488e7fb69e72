#include "migration/model/loss_kinds.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

TEST(LossKinds, CodesAreStableNamesInKebabCase)
{
    static const QRegularExpression kebab(u"^[a-z]+(-[a-z]+)*$"_s);
    QSet<QString> codes;
    for (const LossRow& row : lossRows()) {
        EXPECT_TRUE(kebab.match(lossCode(row.kind)).hasMatch()) << row.code;
        EXPECT_FALSE(codes.contains(lossCode(row.kind))) << row.code;
        codes.insert(lossCode(row.kind));
    }
}

TEST(LossKinds, EachIsFoundByItsCodeAndHasWords)
{
    for (const LossRow& row : lossRows()) {
        EXPECT_EQ(lossRowOf(lossCode(row.kind)), &row);
        EXPECT_FALSE(lossText(row.kind).isEmpty()) << row.code;
        // Advice names a program or an option of ours; without one, there is none.
        const QString advice = lossAdvice(row.kind);
        EXPECT_TRUE(advice.isEmpty() || advice.contains(QLatin1String("import")) ||
                    advice.contains(QLatin1String("labelport-workbench")))
            << row.code;
    }
    EXPECT_EQ(lossRowOf(u"no-such-code"_s), nullptr);
}

TEST(LossKinds, AreAllInTheManual)
{
    QFile manual(QStringLiteral(LABELPORT_SOURCE_DIR "/docs/migration-report.md"));
    ASSERT_TRUE(manual.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(manual.readAll());
    for (const LossRow& row : lossRows()) {
        const QString impact = row.impact == Impact::Content ? u"yes"_s : u"no"_s;
        const QString line = u"| `%1` | %2 |"_s.arg(lossCode(row.kind), impact);
        EXPECT_TRUE(text.contains(line)) << line.toStdString();
    }
}

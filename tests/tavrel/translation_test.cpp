// Which texts are for users, with their contexts and comments for translators.

#include "tests/tavrel/reader_fixture.h"

#include <QCoreApplication>
#include <QTranslator>

using namespace tavrel_test;

namespace {

/// Returns the text in angle brackets and records the request.
class BracketTranslator : public QTranslator
{
public:
    struct Question
    {
        QString context;
        QString text;
        QString comment;
    };

    [[nodiscard]] QString translate(const char* context, const char* text, const char* comment,
                                    int /*number*/) const override
    {
        m_questions.append(
            {QString::fromUtf8(context), QString::fromUtf8(text), QString::fromUtf8(comment)});
        return QLatin1Char('<') + QString::fromUtf8(text) + QLatin1Char('>');
    }
    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString commentOf(const QString& text) const
    {
        for (const Question& question : m_questions) {
            if (question.text == text) {
                return question.context + QLatin1Char('/') + question.comment;
            }
        }
        return QStringLiteral("never asked");
    }

private:
    mutable QList<Question> m_questions;
};

class Translation : public ReaderTest
{
protected:
    Translation() { QCoreApplication::installTranslator(&translator); }
    ~Translation() override { QCoreApplication::removeTranslator(&translator); }

    BracketTranslator translator;
};

const QString Title = QStringLiteral("QObject/Error message title.");
const QString TranslatedContent = QStringLiteral("QObject/Content of error message.");

TEST_F(Translation, OfTheWarning)
{
    EXPECT_TRUE(import(LabelFile(2000024, {QStringLiteral("/list.csv")})
                           .text(QStringLiteral("Lot"), QStringLiteral("2"))
                           .barcode(true, 5)
                           .symbol(QStringLiteral("unknown"))));
    EXPECT_EQ(boxes.first()->windowTitle(), QStringLiteral("<Warning: Import issues.>"));
    EXPECT_EQ(boxText(),
              QStringLiteral("<Errors reading symbol items.\nPlease update legacy Tavrel to its "
                             "latest version and re-save file.>\n<Unsupported barcode symbols.>\n"
                             "\"Lot\"<:\n\tOriginal font size: 12.>\n<Datasource not connected.>"));
    EXPECT_EQ(translator.commentOf(QStringLiteral("Warning: Import issues.")), Title);
    for (const char* text :
         {"Errors reading symbol items.\nPlease update legacy Tavrel to its latest version and "
          "re-save file.",
          "Unsupported barcode symbols.", ":\n\tOriginal font size: %1.",
          "Datasource not connected."}) {
        EXPECT_EQ(translator.commentOf(QString::fromUtf8(text)), TranslatedContent) << text;
    }
}

TEST_F(Translation, OfTheLoadError)
{
    EXPECT_FALSE(import(LabelFile().typeCode(1)));
    EXPECT_EQ(boxes.first()->windowTitle(), QStringLiteral("<Load Error>"));
    EXPECT_EQ(boxText(), QStringLiteral("<Errors reading items.>"));
    EXPECT_EQ(translator.commentOf(QStringLiteral("Load Error")), Title);
    EXPECT_EQ(translator.commentOf(QStringLiteral("Errors reading items.")), TranslatedContent);
}

TEST_F(Translation, OfTheVersionRefusal)
{
    EXPECT_FALSE(import(QByteArray()));
    EXPECT_EQ(errors().value(0),
              QStringLiteral("<Invalid canvas file version (0 != 2000024) in> ") + path);
}

TEST_F(Translation, OfDatabaseKeysIsThatOfTheLibrarysStart)
{
    EXPECT_TRUE(
        import(LabelFile()
                   .text(QStringLiteral("a"), QStringLiteral("1"), QStringLiteral("_SPECIAL"),
                         QStringLiteral("%Record% %_ROW%"))
                   .text(QStringLiteral("a"), QStringLiteral("1"), QStringLiteral("_DATE"))));
    EXPECT_EQ(host.callsWith("createDatasource").size(), 1);
    EXPECT_EQ(translator.commentOf(QStringLiteral("Record")), QStringLiteral("never asked"));
}

} // namespace

// Which texts are for users, with their contexts and comments for translators.

#include "tests/tavrel/reader_fixture.h"

#include <QCoreApplication>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

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
        return u"never asked"_s;
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

const QString Title = u"QObject/Error message title."_s;
const QString TranslatedContent = u"QObject/Content of error message."_s;

TEST_F(Translation, OfTheWarning)
{
    EXPECT_TRUE(import(LabelFile(2000024, {u"/list.csv"_s})
                           .text(u"Lot"_s, u"2"_s)
                           .barcode(true, 5)
                           .symbol(u"unknown"_s)));
    EXPECT_EQ(boxes.first()->windowTitle(), u"<Warning: Import issues.>"_s);
    EXPECT_EQ(boxText(), u"<Errors reading symbol items.\nPlease update legacy Tavrel to its "
                         "latest version and re-save file.>\n<Unsupported barcode symbols.>\n"
                         "\"Lot\"<:\n\tOriginal font size: 12.>\n<Datasource not connected.>"_s);
    EXPECT_EQ(translator.commentOf(u"Warning: Import issues."_s), Title);
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
    EXPECT_EQ(boxes.first()->windowTitle(), u"<Load Error>"_s);
    EXPECT_EQ(boxText(), u"<Errors reading items.>"_s);
    EXPECT_EQ(translator.commentOf(u"Load Error"_s), Title);
    EXPECT_EQ(translator.commentOf(u"Errors reading items."_s), TranslatedContent);
}

TEST_F(Translation, OfTheVersionRefusal)
{
    EXPECT_FALSE(import(QByteArray()));
    EXPECT_EQ(errors().value(0), u"<Invalid canvas file version (0 != 2000024) in> "_s + path);
}

TEST_F(Translation, OfDatabaseKeysIsThatOfTheLibrarysStart)
{
    EXPECT_TRUE(import(LabelFile()
                           .text(u"a"_s, u"1"_s, u"_SPECIAL"_s, u"%Record% %_ROW%"_s)
                           .text(u"a"_s, u"1"_s, u"_DATE"_s)));
    EXPECT_EQ(host.callsWith("createDatasource").size(), 1);
    EXPECT_EQ(translator.commentOf(u"Record"_s), u"never asked"_s);
}

} // namespace

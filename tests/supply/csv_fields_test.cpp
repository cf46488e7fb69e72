#include "supply/csv_fields.h"

#include <gtest/gtest.h>

namespace {

struct FieldsCase
{
    const char* what;
    QByteArray line;
    QStringList fields;
};

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

QStringList fieldList(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(latin1(text));
    }
    return list;
}

const FieldsCase fieldsCases[] = {
    {"nothing", "", {}},
    {"only a line end", "\r\n", {}},
    {"plain fields", "a,b,c\r\n", fieldList({"a", "b", "c"})},
    {"no line end", "a,b", fieldList({"a", "b"})},
    {"empty fields are kept", "a,,c", fieldList({"a", "", "c"})},
    {"a leading empty field", ",b", fieldList({"", "b"})},
    {"a trailing empty field is not stored", "a,b,\r\n", fieldList({"a", "b"})},
    {"of two trailing empty fields the first is stored", "a,,\r\n", fieldList({"a", ""})},
    {"only a comma", ",", fieldList({""})},
    {"blanks are kept", " Index,Color,\r\n", fieldList({" Index", "Color"})},
    {"line ends inside are dropped", "a\rb\nc,d", fieldList({"abc", "d"})},
    {"bytes are Latin-1", "\xe4\xff,\xc3\xa4", fieldList({"\xe4\xff", "\xc3\xa4"})},
    {"a zero byte is a character", QByteArray("a\0b", 3), {QString::fromLatin1("a\0b", 3)}},

    {"backslash takes a comma", "a\\,b,c", fieldList({"a,b", "c"})},
    {"backslash takes a quote", "\\\"a,b", fieldList({"\"a", "b"})},
    {"backslash takes a backslash", "a\\\\,b", fieldList({"a\\", "b"})},
    {"backslash takes a line feed", "a\\\nb", fieldList({"a\nb"})},
    {"backslash takes a letter", "\\n", fieldList({"n"})},
    {"backslash at the end", "a\\", fieldList({"a"})},

    {"quotes stay", "\"a\",b", fieldList({"\"a\"", "b"})},
    {"an empty quoted field", "\"\",b", fieldList({"\"\"", "b"})},
    {"comma and line end in quotes", "\"a,\r\nb\",c", fieldList({"\"a,\r\nb\"", "c"})},
    {"a quote in mid-field", "a\"b,c\",d", fieldList({"a\"b,c\"", "d"})},
    {"a doubled quote becomes one", "\"a\"\"b\"", fieldList({"\"a\"b\""})},
    {"two doubled quotes", "\"1\"\" x 2\"\" tape\",z", fieldList({"\"1\" x 2\" tape\"", "z"})},
    {"backslash in quotes takes a quote", "\"a\\\"b\",c", fieldList({"\"a\"b\"", "c"})},
    {"backslash in quotes takes a comma", "\"a\\,b\"", fieldList({"\"a,b\""})},
    {"an open quote runs to the end", "\"a,b\r\n", fieldList({"\"a,b\r\n"})},
    {"a backslash ends an open quote", "\"a\\", fieldList({"\"a"})},

    {"what follows a closing quote is skipped", "\"a\"xyz,b", fieldList({"\"a\"", "b"})},
    {"skipped to the end", "\"a\"xyz", fieldList({"\"a\""})},
    {"a carriage return ends the field", "\"a\"x\rb,c", fieldList({"\"a\"", "b", "c"})},
    {"a line feed ends the field", "\"a\"x\nb,c", fieldList({"\"a\"", "b", "c"})},
    {"a quoted last field", "a,\"b\"\r\n", fieldList({"a", "\"b\""})},
    {"a backslash behind it takes a byte", "\"a\"x\\,y,b", fieldList({"\"a\",y", "b"})},
    {"a later quote resumes", "\"a\"x\"b,c\",d", fieldList({"\"a\"b,c\"", "d"})},
};

TEST(CsvFields, SplitsALine)
{
    for (const FieldsCase& row : fieldsCases) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(csvFields(row.line), row.fields) << csvFields(row.line).join(u'|').toStdString();
    }
}

} // namespace

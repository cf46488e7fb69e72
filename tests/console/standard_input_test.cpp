// Labels from standard input.

#include "console/standard_input.h"

#include <QBuffer>
#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace {

QString copyOf(QByteArray bytes, qint64 largest, QTemporaryFile& file)
{
    QBuffer input(&bytes);
    EXPECT_TRUE(input.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.open());
    return console::copyLabel(input, file, largest);
}

TEST(StandardInput, IsCopiedUpToTheLimit)
{
    QTemporaryFile file;
    EXPECT_EQ(copyOf("0123456789", 10, file), QString());
    ASSERT_TRUE(file.seek(0));
    EXPECT_EQ(file.readAll(), QByteArray("0123456789"));
}

TEST(StandardInput, IsRefusedBeyondTheLimit)
{
    QTemporaryFile file;
    EXPECT_EQ(copyOf("0123456789a", 10, file).toStdString(),
              "Standard input is longer than any label.");
}

} // namespace

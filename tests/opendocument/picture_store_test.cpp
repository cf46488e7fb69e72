// Pictures of a package: read once, within limits, raster only.

#include "tests/support/captured_log.h"

#include "opendocument/opendocument_limits.h"
#include "opendocument/picture_store.h"
#include "tests/support/encoded_picture.h"

#include <QImage>
#include <QMap>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

/// A package that counts how often it is read.
struct Members
{
    QMap<QString, QByteArray> members;
    QStringList reads;
    qint64 lastLimit = 0;

    PictureStore store()
    {
        return PictureStore([this](const QString& name, qint64 largest) {
            reads.append(name);
            lastLimit = largest;
            const QByteArray bytes = members.value(name);
            return bytes.size() <= largest ? bytes : QByteArray();
        });
    }
};

} // namespace

TEST(PictureStore, DecodesAPictureOnce)
{
    Members members{{{u"a.png"_s, monoPng(3, 2)}}, {}};
    PictureStore store = members.store();
    EXPECT_EQ(store.pixmap(u"a.png"_s).size(), QSize(3, 2));
    EXPECT_EQ(store.pixmap(u"a.png"_s).size(), QSize(3, 2));
    EXPECT_EQ(members.reads.size(), 1);
}

TEST(PictureStore, ReadsADrawingOnce)
{
    Members members{{{u"a.svg"_s, "<svg/>"}}, {}};
    PictureStore store = members.store();
    EXPECT_EQ(store.bytes(u"a.svg"_s), "<svg/>");
    EXPECT_EQ(store.bytes(u"a.svg"_s), "<svg/>");
    EXPECT_EQ(members.reads.size(), 1);
}

TEST(PictureStore, MissingOrDamagedPicturesAreNull)
{
    Members members{{{u"bad.png"_s, "no picture"}, {u"cut.png"_s, monoPng(50, 50).first(60)}}, {}};
    PictureStore store = members.store();
    EXPECT_TRUE(store.pixmap(u"missing.png"_s).isNull());
    EXPECT_TRUE(store.bytes(u"missing.svg"_s).isEmpty());
    const CapturedLog log;
    EXPECT_TRUE(store.pixmap(u"bad.png"_s).isNull());
    EXPECT_TRUE(store.pixmap(u"cut.png"_s).isNull());
    EXPECT_EQ(log.messages(),
              (QStringList{u"The picture bad.png cannot be decoded or is too large"_s,
                           u"The picture cut.png cannot be decoded or is too large"_s}));
}

TEST(PictureStore, NeverPaintsADrawingUnderAPicturesName)
{
    Members members{{{u"a.png"_s, "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"5\" "
                                  "height=\"5\"><rect width=\"5\" height=\"5\"/></svg>"}},
                    {}};
    EXPECT_TRUE(members.store().pixmap(u"a.png"_s).isNull());
}

TEST(PictureStore, RefusesPicturesByTheSizeTheirHeaderClaims)
{
    QByteArray huge = monoPng(3, 2);
    qToBigEndian<quint32>(100000, huge.data() + 16);
    qToBigEndian<quint32>(100000, huge.data() + 20);
    Members members{{{u"a.png"_s, huge}}, {}};
    EXPECT_TRUE(members.store().pixmap(u"a.png"_s).isNull());
}

TEST(PictureStore, RefusesMorePixelsThanAnImportMayTake)
{
    // 30 million pixels each, in a few kilobytes.
    const QByteArray large = monoPng(5500, 5500);
    Members members{{{u"a.png"_s, large}, {u"b.png"_s, large}, {u"c.png"_s, monoPng(2, 2)}}, {}};
    PictureStore store = members.store();
    EXPECT_FALSE(store.pixmap(u"a.png"_s).isNull());
    EXPECT_TRUE(store.pixmap(u"b.png"_s).isNull());
    EXPECT_FALSE(store.pixmap(u"c.png"_s).isNull()) << "small ones still fit";
}

TEST(PictureStore, ReadsNoMoreBytesThanAnImportMayTake)
{
    Members members;
    for (int i = 0; i < 5; ++i) {
        members.members.insert(QString::number(i), QByteArray(limits::PictureBytes, ' '));
    }
    PictureStore store = members.store();
    for (int i = 0; i < 4; ++i) {
        EXPECT_FALSE(store.bytes(QString::number(i)).isEmpty());
        EXPECT_EQ(members.lastLimit, limits::PictureBytes);
    }
    EXPECT_TRUE(store.bytes(u"4"_s).isEmpty());
    EXPECT_EQ(members.lastLimit, 0);
}

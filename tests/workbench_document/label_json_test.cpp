#include "workbench/datasources/csv_source.h"
#include "workbench/document/label_json.h"

#include "sample_label.h"

#include "workbench/document/document_limits.h"
#include "workbench/document/label_file.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using namespace Qt::Literals::StringLiterals;

using namespace workbench;
using namespace workbench::document;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

QJsonObject parsed(const QByteArray& bytes)
{
    return QJsonDocument::fromJson(bytes).object();
}

std::string errorOf(const QJsonObject& file)
{
    return fromJson(QJsonDocument(file).toJson()).error.toStdString();
}

/// The sample with one field of its outermost object replaced.
QJsonObject sampleWith(const char* key, const QJsonValue& value)
{
    QJsonObject file = parsed(toJson(sampleLabel()));
    file.insert(QLatin1String(key), value);
    return file;
}

using Visit = std::function<void(const QJsonValue& whole)>;

/// Calls visit with a copy of the value for every replacement of every part of it.
void forEachReplacement(const QJsonValue& value, const Visit& visit)
{
    static const QJsonValue others[] = {QJsonValue(), true,
                                        -1.5,         7,
                                        1e300,        -1e300,
                                        u"x"_s,       QString(),
                                        QJsonArray(), QJsonArray{1e300, -1e300},
                                        QJsonObject()};
    for (const QJsonValue& other : others) {
        visit(other);
    }
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QString& key : object.keys()) {
            forEachReplacement(object[key], [&](const QJsonValue& replaced) {
                QJsonObject copy = object;
                copy[key] = replaced;
                visit(copy);
            });
            QJsonObject without = object;
            without.remove(key);
            visit(without);
        }
    }
    for (qsizetype i = 0; i < value.toArray().size(); ++i) {
        forEachReplacement(value.toArray()[i], [&](const QJsonValue& replaced) {
            QJsonArray copy = value.toArray();
            copy[i] = replaced;
            visit(copy);
        });
    }
}

void draw(Canvas& canvas)
{
    QImage image(60, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    canvas.scene()->render(&painter, QRectF(0, 0, 60, 30), canvas.pageRect());
}

} // namespace

// A file of the first version, as in the description of the format. All later versions must
// open it.
TEST(LabelJson, OpensAFileOfTheFirstVersion)
{
    const ReadLabel read = fromJson(R"({
        "format": "labelport-label",
        "version": 1,
        "label": {
            "page": {"size": [283.5, 141.75], "canvasFlag": false, "orientation": true,
                     "background": "#ffffffff", "defaultPen": "#ff000000"},
            "datasources": [
                {"id": 1, "kind": "SequenceDatasource", "selectedFields": [],
                 "properties": {"Prefix": "No. ", "Start": 1, "End": 50, "Step": 1, "ZeroPad": 3,
                                "Suffix": ""}}],
            "items": [
                {"type": "rectangle",
                 "box": {"size": [72, 36], "rotation": 90, "flipHorizontal": false,
                         "flipVertical": false},
                 "placement": {"position": [10, 20.5], "z": 2, "movable": true,
                               "readOnly": false, "userBackground": false},
                 "pen": {"color": "#ff0000ff", "width": 2, "style": 1, "cap": 0, "join": 64},
                 "fill": {"color": "#00000000", "filled": true, "style": 1},
                 "futureGroup": {}}]
        }
    })");
    ASSERT_EQ(read.error.toStdString(), "");
    EXPECT_EQ(read.label.page.size, QSizeF(283.5, 141.75));
    EXPECT_TRUE(read.label.page.orientation);
    ASSERT_EQ(read.label.datasources.size(), 1);
    EXPECT_EQ(read.label.datasources[0].properties[u"ZeroPad"_s], QVariant(3));
    ASSERT_EQ(read.label.items.size(), 1);
    const ItemValues& item = read.label.items[0];
    EXPECT_EQ(item.type, KestTypes::Rectangle);
    EXPECT_EQ(item.box.rotation, 90.0);
    EXPECT_EQ(item.placement.position, QPointF(10, 20.5));
    EXPECT_EQ(item.pen->color, QColor(Qt::blue));
    EXPECT_EQ(item.fill->color.alpha(), 0);
    EXPECT_FALSE(item.text.has_value());
}

TEST(LabelJson, ReportsFilesThatAreNotLabels)
{
    for (const QByteArray& other : {QByteArray("{}"), QByteArray("[]"),
                                    QByteArray(R"({"format": "something", "version": 1})")}) {
        EXPECT_EQ(fromJson(other).error.toStdString(), "The file is not a saved label.");
    }
    for (const QByteArray& other : {QByteArray(), QByteArray("PK\3\4"), QByteArray("\0\0\0", 3)}) {
        EXPECT_THAT(fromJson(other).error.toStdString(),
                    StartsWith("The file is not a saved label, or it is damaged: after "));
    }
}

TEST(LabelJson, SaysThatANewerVersionIsNeeded)
{
    EXPECT_EQ(errorOf(sampleWith("version", FormatVersion + 1)),
              "The label was saved by a newer version of the program: its format is 3, and this"
              " version knows formats up to 2. Update the program to open it.");
    for (const QJsonValue& bad :
         {QJsonValue(0), QJsonValue(-1), QJsonValue(1.5), QJsonValue(u"1"_s), QJsonValue(1e300)}) {
        EXPECT_EQ(errorOf(sampleWith("version", bad)),
                  "The label file is damaged: version is not a positive whole number.");
    }
}

// Older programs open what they can.
TEST(LabelJson, HasTheOldestVersionThatHasAllParts)
{
    SavedLabel label = sampleLabel();
    EXPECT_EQ(parsed(toJson(label)).value(QLatin1String("version")).toInt(), 1);
    const workbench::datasources::CsvTable table =
        workbench::datasources::parseCsv("Name,Price\nApple,1\nPear,2\n");
    const QVariantMap properties = workbench::datasources::CsvSource::propertiesOf(
        u"/a/fruit.csv"_s, {QLatin1Char(',')}, table);
    label.datasources.append(
        {99, workbench::datasources::CsvSource::Kind.toString(), properties, {}});
    EXPECT_EQ(parsed(toJson(label)).value(QLatin1String("version")).toInt(), 2);
    const ReadLabel read = fromJson(toJson(label));
    EXPECT_EQ(read.error, QString());
    EXPECT_EQ(read.label, label);
}

TEST(LabelJson, NoticesAnyChangeByItsChecksum)
{
    QJsonObject file = parsed(toJson(sampleLabel()));
    QJsonObject label = file[QLatin1String("label")].toObject();
    QJsonObject page = label[QLatin1String("page")].toObject();
    page[QLatin1String("orientation")] = false;
    label[QLatin1String("page")] = page;
    file[QLatin1String("label")] = label;
    EXPECT_EQ(errorOf(file),
              "The label file is damaged: its content has changed since it was saved.");
    file.remove(QLatin1String("checksum"));
    EXPECT_EQ(errorOf(file), "") << "a file that a user wrote has none";
}

TEST(LabelJson, NamesThePlaceOfTheDamage)
{
    QJsonObject file = parsed(toJson(sampleLabel()));
    file.remove(QLatin1String("checksum"));
    QByteArray text = QJsonDocument(file).toJson(QJsonDocument::Compact);
    const struct
    {
        const char* from;
        const char* to;
        const char* error;
    } rows[] = {
        {R"("color":"#280a141e")", R"("color":"blue")", "items[0].pen.color is not a color."},
        {R"("orientation":true)", R"("orientation":1)", "page.orientation is not true or false."},
        {R"("type":"picture")", R"("type":"photograph")",
         "items[0].type is not a known type of item."},
        {R"("size":[200.5,100.25])", R"("size":[200.5])", "page.size is not a width and a height."},
        {R"("ZeroPad":4)", R"("ZeroPad":4.5)",
         "datasources[0].properties is not a set of properties."},
        {R"("canvasFlag":true,)", "", "page.canvasFlag is missing."},
    };
    for (const auto& row : rows) {
        ASSERT_TRUE(text.contains(row.from)) << row.from;
        QByteArray damaged = text;
        damaged.replace(row.from, row.to);
        EXPECT_THAT(
            fromJson(damaged).error.toStdString(),
            testing::AllOf(StartsWith("The label file is damaged: "), HasSubstr(row.error)));
    }
}

TEST(LabelJson, RefusesEveryTruncation)
{
    const QByteArray whole = toJson(sampleLabel());
    ASSERT_EQ(whole.back(), '\n') << "the last byte is not part of the label";
    for (qsizetype size = 0; size < whole.size() - 1; ++size) {
        ASSERT_THAT(fromJson(whole.left(size)).error.toStdString(),
                    StartsWith("The file is not a saved label, or it is damaged: after "));
    }
}

TEST(LabelJson, RefusesEveryChangedByteOrReadsTheSame)
{
    const QByteArray whole = toJson(sampleLabel());
    const SavedLabel label = sampleLabel();
    for (qsizetype at = 0; at < whole.size(); at += 3) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 1);
        const ReadLabel read = fromJson(damaged);
        ASSERT_TRUE(!read.error.isEmpty() || read.label == label) << at;
    }
}

// Replacements of a valid type must not harm the canvas either.
TEST(LabelJson, SurvivesAnyValueInAnyPlace)
{
    int refused = 0;
    int opened = 0;
    for (const KestTypes::ShapeType type : allTypes()) {
        SavedLabel label = sampleLabel();
        label.items = {sampleItem(type)};
        QJsonObject file = parsed(toJson(label));
        file.remove(QLatin1String("checksum"));
        forEachReplacement(file, [&](const QJsonValue& replaced) {
            const QByteArray bytes = QJsonDocument(replaced.toObject()).toJson();
            const ReadLabel read = fromJson(bytes);
            if (!read.error.isEmpty()) {
                ++refused;
                return;
            }
            ++opened;
            Canvas canvas;
            datasources::DatasourceController sources;
            if (restore(read.label, canvas, sources)) {
                draw(canvas);
            }
        });
    }
    EXPECT_GT(refused, 1000);
    EXPECT_GT(opened, 100);
}

TEST(LabelJson, BoundsTheNumberOfItems)
{
    QJsonObject file = parsed(toJson(sampleLabel()));
    file.remove(QLatin1String("checksum"));
    QJsonObject label = file[QLatin1String("label")].toObject();
    QJsonArray items;
    for (qsizetype i = 0; i <= limits::Items; ++i) {
        items.append(0);
    }
    label[QLatin1String("items")] = items;
    file[QLatin1String("label")] = label;
    EXPECT_EQ(errorOf(file), "The label file is damaged: items is longer than 500000.");
}

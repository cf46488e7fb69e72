// The objects of a binary label: a walk over its records by tables of their fields. Nothing in
// the file says how many records there are or how long one is, so every field is passed
// over, and only what decides about an object is looked at.

#include "migration/census/byte_cursor.h"
#include "migration/census/counting.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <string_view>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

// Fields of a record, one letter each:
//   b a flag of one byte, i a whole number, d a number with a point, s a text,
//   a bytes, p a picture,
//   K the key of a data source, T a text that may hold such a key, N the name of a shape.
struct Layout
{
    quint32 firstVersion;
    std::string_view fields;
};

constexpr std::string_view ItemHeaderFields = "bddddss";

constexpr std::array CanvasLayouts{
    Layout{0, "biiiissbiibdddd"},
    Layout{2000019, "bddiissbiibdddd"},
    Layout{2000024, "bddiissbiibdddddd"},
};
constexpr std::array SequenceLayouts{
    Layout{0, "iiiiss"},
    Layout{2000020, "iiiissi"},
};
constexpr std::array TextLayouts{
    Layout{0, "KiisibbbTibb"},
    Layout{2000018, "ddKiisibbbTibb"},
    Layout{2000020, "ddKiisibbbTibbbbb"},
    Layout{2000021, "ddKiisibbbTibbbbbi"},
    Layout{2000022, "sTKddiisibbbibbbbbi"},
    Layout{2000023, "sTKddiisibbbibbbbbiii"},
};
constexpr std::array BarcodeLayouts{
    Layout{0, "KisbsiibbbbsiiiT"},
    Layout{2000022, "sTKibsiibbbbsiii"},
};
constexpr std::array SymbolLayouts{
    Layout{0, "s"},
    Layout{2000023, "sa"},
};
constexpr std::array ShapeLayouts{Layout{0, "iiiN"}};
constexpr std::array PictureLayouts{Layout{0, "p"}};

template <std::size_t count>
std::string_view fieldsOf(const std::array<Layout, count>& layouts, quint32 version)
{
    std::string_view fields;
    for (const Layout& layout : layouts) {
        fields = version >= layout.firstVersion ? layout.fields : fields;
    }
    return fields;
}

enum RecordCode : qint32 {
    TextRecord = 65536,
    SymbolRecord,
    ShapeRecord,
    LinearBarcodeRecord,
    PictureRecord,
    EmptyRecord,
    MatrixBarcodeRecord,
};

constexpr quint32 OldestVersion = 2000016;

// The keys of data sources that have a counterpart.
constexpr std::array SourceKeys{"_SEQUENCE"_L1, "_DATE"_L1, "_DATES"_L1, "_DATEX"_L1, "_TIME"_L1};
constexpr QLatin1String SpecialKey("_SPECIAL");

constexpr std::array ShapeNames{"HorizontalLine"_L1, "VerticalLine"_L1, "RoundedRectangle"_L1,
                                "Rectangle"_L1,      "Triangle"_L1,     "Octagon"_L1,
                                "Diamond"_L1,        "Hexagon"_L1,      "Oval"_L1};

// What is remembered of the fields of a record.
struct Fields
{
    QString key;
    QString keyText;
    QString shapeName;
    bool hasPicture = false;
};

void takeField(char field, ByteCursor& cursor, Fields& fields)
{
    switch (field) {
    case 'b':
        return cursor.skip(1);
    case 'i':
        return cursor.skip(4);
    case 'd':
        return cursor.skip(8);
    case 's':
        return cursor.skipText();
    case 'a':
        return cursor.skipBytes();
    case 'p':
        fields.hasPicture = cursor.skipPicture();
        return;
    case 'K':
        fields.key = cursor.takeText();
        return;
    case 'T':
        fields.keyText = cursor.takeText();
        return;
    default:
        fields.shapeName = cursor.takeText();
    }
}

Fields takeFields(std::string_view layout, ByteCursor& cursor)
{
    Fields fields;
    for (const char field : layout) {
        takeField(field, cursor, fields);
    }
    return fields;
}

std::optional<ObjectClass> classOf(qint32 code)
{
    switch (code) {
    case TextRecord:
        return ObjectClass::Text;
    case SymbolRecord:
        return ObjectClass::Symbol;
    case ShapeRecord:
        return ObjectClass::Shape;
    case LinearBarcodeRecord:
    case MatrixBarcodeRecord:
        return ObjectClass::Barcode;
    case PictureRecord:
        return ObjectClass::Picture;
    default:
        return std::nullopt;
    }
}

std::string_view layoutOf(ObjectClass objectClass, quint32 version)
{
    switch (objectClass) {
    case ObjectClass::Text:
        return fieldsOf(TextLayouts, version);
    case ObjectClass::Symbol:
        return fieldsOf(SymbolLayouts, version);
    case ObjectClass::Barcode:
        return fieldsOf(BarcodeLayouts, version);
    case ObjectClass::Picture:
        return fieldsOf(PictureLayouts, version);
    default:
        return fieldsOf(ShapeLayouts, version);
    }
}

bool isPlaceholderInSentence(const QString& text)
{
    return std::none_of(SourceKeys.begin(), SourceKeys.end(),
                        [&text](QLatin1String key) { return text == u'%' + QString(key) + u'%'; });
}

void recordSource(const Fields& fields, CountedObject& object, Census& census)
{
    if (fields.key.isEmpty()) {
        return;
    }
    object.needsSource = true;
    if (fields.key == SpecialKey) {
        object.hasPlaceholder = isPlaceholderInSentence(fields.keyText);
        if (object.hasPlaceholder) {
            census.detail(LossKind::PlaceholderText, fields.keyText);
        }
    } else if (!holds(SourceKeys, fields.key)) {
        census.detail(LossKind::DatasourceUnbound, fields.key);
    }
}

void recordShape(const Fields& fields, CountedObject& object, Census& census)
{
    if (fields.shapeName.endsWith("Line"_L1) && holds(ShapeNames, fields.shapeName)) {
        object.objectClass = ObjectClass::Line;
    } else if (!holds(ShapeNames, fields.shapeName)) {
        object.changes.add(LossKind::UnknownShape);
        census.detail(LossKind::UnknownShape, fields.shapeName);
    }
}

void countRecord(ObjectClass objectClass, quint32 version, ByteCursor& cursor, Census& census)
{
    (void)takeFields(ItemHeaderFields, cursor);
    const Fields fields = takeFields(layoutOf(objectClass, version), cursor);
    CountedObject object{.objectClass = objectClass};
    recordSource(fields, object, census);
    if (objectClass == ObjectClass::Shape) {
        recordShape(fields, object, census);
    }
    // A picture record without a picture shows nothing in the old program either.
    if (objectClass != ObjectClass::Picture || fields.hasPicture) {
        census.objects.append(object);
    }
}

QString unknownRest()
{
    return QCoreApplication::translate(
        "migration::Census",
        "The file continues with unknown data, which may contain more objects.");
}

QString cutShort()
{
    return QCoreApplication::translate(
        "migration::Census", "The file is truncated: it may have contained more objects.");
}

void countItems(quint32 version, ByteCursor& cursor, Census& census)
{
    while (!cursor.atEnd() && census.objects.size() <= MaximumObjects) {
        const qint32 code = cursor.takeNumber();
        if (cursor.isCut()) {
            return;
        }
        if (code == EmptyRecord) {
            continue;
        }
        const auto objectClass = classOf(code);
        if (!objectClass) {
            census.unknown = unknownRest();
            census.note(LossKind::RestUnread);
            return;
        }
        countRecord(*objectClass, version, cursor, census);
    }
}

void skipDatabases(ByteCursor& cursor)
{
    cursor.skip(12);
    const qint32 count = cursor.takeNumber();
    for (qint32 entry = 0; entry < count && !cursor.isCut(); ++entry) {
        cursor.skipText();
        cursor.skip(4);
    }
}

} // namespace

Census countTavrel(const QByteArray& file)
{
    Census census;
    ByteCursor cursor(file);
    cursor.skip(4);
    const auto version = static_cast<quint32>(cursor.takeNumber());
    if (cursor.isCut() || version < OldestVersion) {
        census.unknown = QCoreApplication::translate(
            "migration::Census", "The file is not a binary label of a supported version.");
        return census;
    }
    (void)cursor.skipPicture(); // the preview
    (void)takeFields(fieldsOf(CanvasLayouts, version), cursor);
    (void)takeFields(fieldsOf(SequenceLayouts, version), cursor);
    skipDatabases(cursor);
    countItems(version, cursor, census);
    if (cursor.isCut() && census.unknown.isEmpty()) {
        census.unknown = cutShort();
        census.note(LossKind::FileCutShort);
    }
    refuseTooMany(census);
    return census;
}

} // namespace migration

// The objects of an XML label: the children of its list of controls, and its background.

#include "migration/census/counting.h"
#include "migration/census/xml_gate.h"
#include "migration/model/known_fonts.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <array>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

struct Control
{
    QLatin1String tag;
    ObjectClass objectClass;
    QLatin1String list; ///< the child whose entries make a data source
    bool alwaysHasSource = false;
};

constexpr std::array Controls{
    Control{"barcode"_L1, ObjectClass::Barcode, "ArrayOfString"_L1},
    Control{"combo_box"_L1, ObjectClass::Text, "ArrayOfAnyType"_L1},
    Control{"date_time_picker"_L1, ObjectClass::Text, {}, true},
    Control{"numeric_up_down"_L1, ObjectClass::Text, {}, true},
    Control{"picture_box"_L1, ObjectClass::Picture, {}},
    Control{"swap_text_box"_L1, ObjectClass::Text, "items"_L1},
    Control{"transparent_label"_L1, ObjectClass::Text, "items"_L1},
    Control{"transparent_shape"_L1, ObjectClass::Shape, {}},
    Control{"transparent_polygon"_L1, ObjectClass::Shape, {}},
};

// Shapes by the number of their sides, and those of none by their number.
constexpr std::array KnownSides{3, 4, 5, 6, 8};
constexpr int ShapesWithoutSides = 6;

const Control* controlOf(const QString& tag)
{
    const auto* found = std::find_if(Controls.begin(), Controls.end(),
                                     [&tag](const Control& control) { return control.tag == tag; });
    return found != Controls.end() ? found : nullptr;
}

bool isDrawing(QByteArray picture)
{
    if (picture.startsWith("\xEF\xBB\xBF")) {
        picture.remove(0, 3);
    }
    return picture.startsWith("<svg");
}

/// Follows the document, remembering where it is.
class Counter
{
public:
    explicit Counter(Census& census)
        : m_census(census)
    {}

    void open(const QString& tag);
    void text(QStringView characters);
    void close();
    void finish();

private:
    [[nodiscard]] bool isAt(qsizetype level, QLatin1String tag) const;
    void openControl(const QString& tag);
    void closeProperty();
    void closeControl();
    void closeBackground();

    Census& m_census;
    QStringList m_path;
    QString m_text;
    int m_lists = 0;
    bool m_isPageSized = false;
    bool m_hasBackground = false;

    CountedObject m_object;
    const Control* m_control = nullptr;
    QByteArray m_picture;
    int m_sides = 0;
    int m_shapeIndex = 0;
};

bool Counter::isAt(qsizetype level, QLatin1String tag) const
{
    return m_path.size() > level && m_path.at(level) == tag;
}

void Counter::open(const QString& tag)
{
    m_path.append(tag);
    m_text.clear();
    if (m_path.size() == 2 && tag == "controls"_L1) {
        ++m_lists;
    } else if (m_path.size() == 3 && isAt(1, "controls"_L1)) {
        openControl(tag);
    } else if (m_path.size() == 5 && m_control != nullptr && isAt(3, m_control->list) &&
               isAt(1, "controls"_L1)) {
        m_object.needsSource = true;
    }
    m_isPageSized =
        m_isPageSized || m_path == QStringList{u"qmtx"_s, u"printable_control"_s, u"bounds"_s};
}

void Counter::openControl(const QString& tag)
{
    m_control = controlOf(tag);
    m_object = {};
    m_picture.clear();
    m_sides = 0;
    m_shapeIndex = 0;
    if (m_control != nullptr) {
        m_object.objectClass = m_control->objectClass;
        m_object.needsSource = m_control->alwaysHasSource;
        // Without a type, or if the type is not a number, the number is 0.
        m_object.barcodeType = m_object.objectClass == ObjectClass::Barcode ? 0 : NoBarcodeType;
    } else {
        m_object.lost = LossKind::UnknownControl;
        m_census.detail(LossKind::UnknownControl, tag);
    }
    if (m_lists > 1) {
        m_object.lost = LossKind::FurtherControls;
    }
}

void Counter::text(QStringView characters)
{
    m_text.append(characters);
}

void Counter::close()
{
    if (isAt(1, "controls"_L1) && m_path.size() > 3) {
        closeProperty();
    } else if (isAt(1, "controls"_L1) && m_path.size() == 3) {
        closeControl();
    } else if (m_path.size() == 3 && isAt(1, "pre_printed_image"_L1) && isAt(2, "content"_L1)) {
        closeBackground();
    }
    m_path.removeLast();
    m_text.clear();
}

void Counter::closeProperty()
{
    const QString& tag = m_path.constLast();
    if (m_path.size() == 4 && tag == "barcode_type"_L1) {
        m_object.barcodeType = std::max(m_text.trimmed().toInt(), 0);
    } else if (m_path.size() == 4 && tag == "sides"_L1) {
        m_sides = m_text.toInt();
    } else if (m_path.size() == 4 && tag == "shape_index"_L1) {
        m_shapeIndex = m_text.toInt();
    } else if (m_path.size() == 5 && isAt(3, "image"_L1) && tag == "content"_L1) {
        m_picture = QByteArray::fromBase64(m_text.toUtf8());
    } else if (m_path.size() == 6 && isAt(4, "font"_L1) && tag == "family"_L1 &&
               !isFontThere(m_text)) {
        m_object.changes.add(LossKind::FontReplaced);
        m_census.detail(LossKind::FontReplaced, m_text);
    }
}

void Counter::closeControl()
{
    if (m_control == nullptr || m_object.lost) {
        m_census.objects.append(m_object);
        return;
    }
    if (m_object.objectClass == ObjectClass::Picture && m_picture.isEmpty()) {
        m_object.lost = LossKind::EmptyPictureBox;
    }
    m_census.drawings += isDrawing(m_picture) ? 1 : 0;
    const bool isKnownShape =
        m_sides == 0 ? m_shapeIndex >= 0 && m_shapeIndex < ShapesWithoutSides
                     : std::find(KnownSides.begin(), KnownSides.end(), m_sides) != KnownSides.end();
    if (m_object.objectClass == ObjectClass::Shape && !isKnownShape) {
        m_object.changes.add(LossKind::UnknownShape);
        m_census.detail(LossKind::UnknownShape,
                        u"shape_index %1, sides %2"_s.arg(m_shapeIndex).arg(m_sides));
    }
    m_census.objects.append(m_object);
}

// The background is below all objects, wherever it is in the file.
void Counter::closeBackground()
{
    const QByteArray picture = QByteArray::fromBase64(m_text.toUtf8());
    if (picture.isEmpty()) {
        return;
    }
    CountedObject background{.objectClass = ObjectClass::Picture};
    if (m_hasBackground) {
        background.lost = LossKind::FurtherControls;
    }
    m_hasBackground = true;
    m_census.drawings += isDrawing(picture) && !background.lost ? 1 : 0;
    m_census.objects.prepend(background);
}

void Counter::finish()
{
    if (!m_isPageSized) {
        m_census.note(LossKind::PageSizeAssumed);
    }
}

} // namespace

Census countOrvanta(const QByteArray& file)
{
    Census census;
    census.unknown = uncountableReason(file);
    if (!census.unknown.isEmpty()) {
        return census;
    }
    Counter counter(census);
    QXmlStreamReader xml(file);
    while (!xml.atEnd() && census.objects.size() <= MaximumObjects) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            counter.open(xml.qualifiedName().toString());
            break;
        case QXmlStreamReader::Characters:
            counter.text(xml.text());
            break;
        case QXmlStreamReader::EndElement:
            counter.close();
            break;
        default:
            break;
        }
    }
    counter.finish();
    if (xml.hasError()) {
        census.unknown = notWellFormed(xml.errorString());
    }
    refuseTooMany(census);
    return census;
}

} // namespace migration

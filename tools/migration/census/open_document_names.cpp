#include "migration/census/open_document_names.h"

#include "migration/census/counting.h"

#include <algorithm>
#include <array>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

struct Namespace
{
    QLatin1String end; ///< of its address, behind the common beginning
    QLatin1String prefix;
};

constexpr QLatin1String CommonChanges("urn:oasis:names:tc:opendocument:xmlns:");

constexpr std::array Namespaces{
    Namespace{"office:1.0"_L1, "office"_L1},
    Namespace{"style:1.0"_L1, "style"_L1},
    Namespace{"text:1.0"_L1, "text"_L1},
    Namespace{"table:1.0"_L1, "table"_L1},
    Namespace{"drawing:1.0"_L1, "draw"_L1},
    Namespace{"dr3d:1.0"_L1, "dr3d"_L1},
    Namespace{"form:1.0"_L1, "form"_L1},
    Namespace{"presentation:1.0"_L1, "presentation"_L1},
    Namespace{"animation:1.0"_L1, "anim"_L1},
    Namespace{"svg-compatible:1.0"_L1, "svg"_L1},
    Namespace{"xsl-fo-compatible:1.0"_L1, "fo"_L1},
};

constexpr std::array DrawingElements{
    DrawingElement{"draw:rect"_L1, ObjectClass::Shape, {}},
    DrawingElement{"draw:circle"_L1, ObjectClass::Shape, {}},
    DrawingElement{"draw:ellipse"_L1, ObjectClass::Shape, {}},
    DrawingElement{"draw:custom-shape"_L1, ObjectClass::Shape, {}},
    DrawingElement{"draw:line"_L1, ObjectClass::Line, {}},
    DrawingElement{"draw:measure"_L1, ObjectClass::Line, {}},
    DrawingElement{"draw:frame"_L1, ObjectClass::Shape, {}},
    DrawingElement{"draw:connector"_L1, ObjectClass::Line, LossKind::Connector},
    DrawingElement{"draw:path"_L1, ObjectClass::Shape, LossKind::FreeformShape},
    DrawingElement{"draw:polygon"_L1, ObjectClass::Shape, LossKind::FreeformShape},
    DrawingElement{"draw:polyline"_L1, ObjectClass::Shape, LossKind::FreeformShape},
    DrawingElement{"draw:regular-polygon"_L1, ObjectClass::Shape, LossKind::FreeformShape},
    DrawingElement{"draw:caption"_L1, ObjectClass::Shape, LossKind::Callout},
    DrawingElement{"draw:control"_L1, ObjectClass::Shape, LossKind::FormControl},
    DrawingElement{"dr3d:scene"_L1, ObjectClass::Shape, LossKind::ThreeDScene},
    DrawingElement{"draw:page-thumbnail"_L1, ObjectClass::Shape, LossKind::UnknownObject},
};

struct TextPart
{
    QLatin1String name;
    LossKind lost;
};

constexpr std::array TextParts{
    TextPart{"table:table"_L1, LossKind::Table},
    TextPart{"text:list"_L1, LossKind::List},
    TextPart{"text:numbered-paragraph"_L1, LossKind::List},
    TextPart{"text:section"_L1, LossKind::TextSection},
    TextPart{"text:table-of-content"_L1, LossKind::TextSection},
    TextPart{"text:illustration-index"_L1, LossKind::TextSection},
    TextPart{"text:table-index"_L1, LossKind::TextSection},
    TextPart{"text:object-index"_L1, LossKind::TextSection},
    TextPart{"text:user-index"_L1, LossKind::TextSection},
    TextPart{"text:alphabetical-index"_L1, LossKind::TextSection},
    TextPart{"text:bibliography"_L1, LossKind::TextSection},
    TextPart{"text:a"_L1, LossKind::LinkText},
    TextPart{"draw:a"_L1, LossKind::NestedObject},
    TextPart{"text:note"_L1, LossKind::Footnote},
    TextPart{"text:ruby"_L1, LossKind::TextElement},
    TextPart{"text:meta"_L1, LossKind::TextElement},
    TextPart{"text:line-break"_L1, LossKind::TextSpacing},
    TextPart{"text:s"_L1, LossKind::TextSpacing},
    TextPart{"text:tab"_L1, LossKind::TextSpacing},
};

constexpr std::array InvisibleElements{
    "text:tracked-changes"_L1,
    "text:sequence-decls"_L1,
    "text:variable-decls"_L1,
    "text:user-field-decls"_L1,
    "text:dde-connection-decls"_L1,
    "text:soft-page-break"_L1,
    "text:bookmark"_L1,
    "text:bookmark-start"_L1,
    "text:bookmark-end"_L1,
    "text:change"_L1,
    "text:change-start"_L1,
    "text:change-end"_L1,
    "text:reference-mark"_L1,
    "text:reference-mark-start"_L1,
    "text:reference-mark-end"_L1,
    "office:forms"_L1,
    "office:event-listeners"_L1,
    "office:annotation-end"_L1,
    "svg:title"_L1,
    "svg:desc"_L1,
    "draw:glue-point"_L1,
    "draw:image-map"_L1,
    "draw:contour-polygon"_L1,
    "draw:contour-path"_L1,
    "draw:layer-set"_L1,
    "presentation:notes"_L1,
    "office:settings"_L1,
    "office:binary-data"_L1,
    "text:alphabetical-index-auto-mark-file"_L1,
};

constexpr std::array EmbeddedElements{"draw:object"_L1, "draw:object-ole"_L1, "draw:plugin"_L1,
                                      "draw:applet"_L1, "draw:floating-frame"_L1};

constexpr std::array KnownShapes{
    "rectangle"_L1,         "round-rectangle"_L1,
    "ellipse"_L1,           "circle"_L1,
    "right-triangle"_L1,    "isosceles-triangle"_L1,
    "diamond"_L1,           "pentagon"_L1,
    "hexagon"_L1,           "octagon"_L1,
    "mso-spt100"_L1,        "mso-spt202"_L1,
    "flowchart-process"_L1,
};

} // namespace

void NameTable::learn(const QXmlStreamAttributes& attributes)
{
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QStringView name = attribute.qualifiedName();
        if (!name.startsWith("xmlns:"_L1) || !attribute.value().startsWith(CommonChanges)) {
            continue;
        }
        const QStringView end = attribute.value().sliced(CommonChanges.size());
        const auto* found = std::find_if(Namespaces.begin(), Namespaces.end(),
                                         [end](const Namespace& row) { return row.end == end; });
        if (found != Namespaces.end()) {
            m_prefixes.insert(name.sliced(6).toString(), found->prefix);
        }
    }
}

QString NameTable::nameOf(QStringView qualified) const
{
    const qsizetype colon = qualified.indexOf(u':');
    const auto prefix =
        m_prefixes.constFind(qualified.left(std::max<qsizetype>(colon, 0)).toString());
    return prefix == m_prefixes.constEnd() ? qualified.toString()
                                           : *prefix + qualified.sliced(colon).toString();
}

const DrawingElement* drawingElement(const QString& name)
{
    const auto* found =
        std::find_if(DrawingElements.begin(), DrawingElements.end(),
                     [&name](const DrawingElement& row) { return row.name == name; });
    return found != DrawingElements.end() ? found : nullptr;
}

std::optional<LossKind> lostTextPart(const QString& name)
{
    const auto* found = std::find_if(TextParts.begin(), TextParts.end(),
                                     [&name](const TextPart& row) { return row.name == name; });
    if (found != TextParts.end()) {
        return found->lost;
    }
    const bool isField = name.startsWith("text:"_L1) || name.startsWith("presentation:"_L1);
    return isField && !isInvisible(name) ? std::optional(LossKind::TextField) : std::nullopt;
}

bool isInvisible(const QString& name)
{
    return holds(InvisibleElements, name) || name.endsWith("-decls"_L1) ||
           name.endsWith("-mark"_L1) || name.endsWith("-mark-start"_L1) ||
           name.endsWith("-mark-end"_L1);
}

bool isSpacing(const QString& name)
{
    return name == "text:s"_L1 || name == "text:tab"_L1 || name == "text:line-break"_L1;
}

bool isUnprinted(QStringView display)
{
    return display == "none"_L1 || display == "screen"_L1;
}

bool isHidden(const QString& name, const QXmlStreamAttributes& attributes)
{
    const QStringView display = attributes.value("text:display"_L1);
    const bool hasCondition = display == "condition"_L1 || name.startsWith("text:hidden-"_L1);
    return display == "none"_L1 ||
           (hasCondition && attributes.value("text:is-hidden"_L1) == "true"_L1);
}

bool isDateOrTime(const QString& name)
{
    return name == "text:date"_L1 || name == "text:time"_L1;
}

bool isAnimation(const QString& name)
{
    return name.startsWith("anim:"_L1) || name == "presentation:animations"_L1;
}

bool isEmbedded(const QString& name)
{
    return holds(EmbeddedElements, name);
}

bool isParagraph(const QString& name)
{
    return name == "text:p"_L1 || name == "text:h"_L1;
}

bool isKnownShape(const QString& type)
{
    return holds(KnownShapes, type);
}

} // namespace migration

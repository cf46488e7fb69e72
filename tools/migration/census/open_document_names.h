#pragma once

#include "migration/model/census.h"

#include <QHash>
#include <QString>
#include <QStringView>
#include <QXmlStreamAttributes>

#include <optional>

/// Names of the elements of OpenDocument.
namespace migration {

/// Converts the names of a document to the usual prefixes. A document may declare other prefixes;
/// the reader, which knows only the usual ones, then finds nothing, and the report must show it.
class NameTable
{
public:
    /// Reads the declarations of an element. They apply to all later names.
    void learn(const QXmlStreamAttributes& attributes);
    [[nodiscard]] QString nameOf(QStringView qualified) const;

private:
    QHash<QString, QString> m_prefixes;
};

/// The result of an element that draws something.
struct DrawingElement
{
    QLatin1String name;
    ObjectClass objectClass;
    /// Why a page's own element of this name is not imported; nothing if it is.
    std::optional<LossKind> lost;
};

/// The element that draws an object; null for every other name. Groups draw nothing.
[[nodiscard]] const DrawingElement* drawingElement(const QString& name);

/// Why the text and the objects in this element of a text are not imported; nothing for an
/// element that holds neither, or is a plain part of a text.
[[nodiscard]] std::optional<LossKind> lostTextPart(const QString& name);

/// Elements without visible content.
[[nodiscard]] bool isInvisible(const QString& name);

/// Blanks, tabs and line ends that are elements.
[[nodiscard]] bool isSpacing(const QString& name);
/// Whether the document hides an element: a section, a field or a text.
/// Whether draw:display keeps an object or a layer off paper.
[[nodiscard]] bool isUnprinted(QStringView display);
[[nodiscard]] bool isHidden(const QString& name, const QXmlStreamAttributes& attributes);
/// The fields that the reader imports.
[[nodiscard]] bool isDateOrTime(const QString& name);
[[nodiscard]] bool isAnimation(const QString& name);

/// Whether a frame's child makes it a picture, an embedded object and so on.
[[nodiscard]] bool isEmbedded(const QString& name);

/// A paragraph or heading.
[[nodiscard]] bool isParagraph(const QString& name);

/// Kinds of custom shapes that have a counterpart.
[[nodiscard]] bool isKnownShape(const QString& type);

} // namespace migration

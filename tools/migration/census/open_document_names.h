#pragma once

#include "migration/model/census.h"

#include <QHash>
#include <QString>
#include <QStringView>
#include <QXmlStreamAttributes>

#include <optional>

/// Names of the elements of OpenDocument.
namespace migration {

/// Turns names as a document has them into those that OpenDocument's own examples use. A
/// document may call its prefixes what it likes; a reader that goes by the usual ones then
/// finds nothing, and that must show.
class NameTable
{
public:
    /// Takes the declarations of an element; they hold from there on.
    void learn(const QXmlStreamAttributes& attributes);
    [[nodiscard]] QString nameOf(QStringView qualified) const;

private:
    QHash<QString, QString> m_prefixes;
};

/// What becomes of an element that draws something.
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

/// Elements that hold nothing to be seen.
[[nodiscard]] bool isInvisible(const QString& name);

/// Blanks, tabs and line ends that are elements.
[[nodiscard]] bool isSpacing(const QString& name);
/// The fields that readers take.
[[nodiscard]] bool isDateOrTime(const QString& name);
[[nodiscard]] bool isAnimation(const QString& name);

/// Whether a frame's child makes it a picture, an embedded object and so on.
[[nodiscard]] bool isEmbedded(const QString& name);

/// A paragraph or heading.
[[nodiscard]] bool isParagraph(const QString& name);

/// Kinds of custom shapes that have a counterpart.
[[nodiscard]] bool isKnownShape(const QString& type);

} // namespace migration

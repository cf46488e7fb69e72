#pragma once

#include "migration/model/census.h"

#include <QHash>
#include <QString>
#include <QXmlStreamAttributes>

namespace migration {

/// What the styles of a document ask for that no label shows.
class StyleBook
{
public:
    /// Takes the start of an element that stands anywhere in the styles, its name in
    /// OpenDocument's own form.
    void take(const QString& name, const QXmlStreamAttributes& attributes);

    /// What changes on a text in this style, by its name; unknown names count as the default.
    [[nodiscard]] LossSet textChanges(const QString& style) const;
    /// The family that a text in this style asks for; empty when it asks for none.
    [[nodiscard]] QString fontOf(const QString& style) const;
    /// What changes on a shape in this style.
    [[nodiscard]] LossSet shapeChanges(const QString& style) const;
    /// What changes on the text of a shape in this style: labels take nothing about texts
    /// from the styles of shapes.
    [[nodiscard]] LossSet shapeTextChanges(const QString& style) const;
    /// Whether a style gives texts the size of their letters.
    [[nodiscard]] bool sizesText(const QString& style) const;
    [[nodiscard]] bool sizesShapeText(const QString& style) const;

private:
    struct Style
    {
        quint64 dropped = 0; ///< a bit for each row of the table of properties
        QString font;
        bool isSized = false; ///< it gives a size of letters
    };

    [[nodiscard]] Style& current();
    [[nodiscard]] const Style& textStyle(const QString& name) const;
    [[nodiscard]] const Style& shapeStyle(const QString& name) const;
    void startStyle(const QXmlStreamAttributes& attributes, bool isDefault);
    void takeProperties(const QString& group, const QXmlStreamAttributes& attributes);

    QHash<QString, Style> m_texts;
    QHash<QString, Style> m_shapes;
    Style m_defaultText;
    Style m_defaultShape;
    Style* m_current = nullptr;
    Style m_nowhere;
};

} // namespace migration

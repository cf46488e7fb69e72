#pragma once

#include "migration/census/open_document_properties.h"
#include "migration/model/appearance.h"
#include "migration/model/census.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QXmlStreamAttributes>

#include <array>

namespace migration {

/// As the color of a text: black or white, depending on its ground.
inline constexpr QLatin1String AutomaticColor("automatic");

/// How the style of a cell draws its borders.
struct CellBorders
{
    bool areDrawn = false; ///< on any side
    bool areOther = false; ///< with dots, dashes or reliefs on any side
};

/// The properties in the styles of a document that labels do not show.
class StyleBook
{
public:
    /// Takes the start of any element in the styles, its name in
    /// OpenDocument's own form.
    void take(const QString& name, const QXmlStreamAttributes& attributes);

    /// What changes on a text in this style, by its name; unknown names count as the default.
    [[nodiscard]] LossSet textChanges(const QString& style) const;
    /// The font family of a text, from its own style, that of its paragraph or that of its
    /// shape, in this order; empty if none of them has one. The shape is null for running text.
    [[nodiscard]] QString familyOf(const QString& text, const QString& paragraph,
                                   const QString& shape) const;
    /// The color in the same way; invalid if it is automatic.
    [[nodiscard]] QColor colorOf(const QString& text, const QString& paragraph,
                                 const QString& shape) const;
    /// Fill and pen of a shape in this style.
    /// @param isFrame a frame has no fill by default, unlike a shape with a style
    void describeShape(const QString& style, bool isInText, bool isFrame,
                       Appearance& appearance) const;
    /// What changes on a shape in this style.
    [[nodiscard]] LossSet shapeChanges(const QString& style) const;
    /// What changes on the text of a shape in this style: labels take nothing about texts
    /// from the styles of shapes.
    [[nodiscard]] LossSet shapeTextChanges(const QString& style) const;
    /// What changes on a section in this style: its background, margins and columns.
    [[nodiscard]] LossSet sectionChanges(const QString& style) const
    {
        return m_sections.value(style);
    }
    /// What labels do not show of a table, row or cell in this style, as names of attributes and
    /// elements: rotated text, shadow, a picture below it.
    [[nodiscard]] QStringList effectsOfCell(const QString& style) const
    {
        return m_cellEffects.value(style);
    }
    /// Whether a list in this style has pictures instead of numbers and symbols.
    [[nodiscard]] bool hasPictureBullets(const QString& style) const
    {
        return m_pictureLists.contains(style);
    }
    /// Whether texts in this style are not shown.
    [[nodiscard]] bool hidesText(const QString& style) const { return textStyle(style).isHidden; }
    /// Whether a paragraph has tab stops at other places than at equal distances.
    [[nodiscard]] bool hasTabStops(const QString& style) const;
    /// Whether a heading in this style shows a number, if it is not in a list.
    [[nodiscard]] bool numbersHeading(const QString& style, int level) const;
    /// How text runs beside an object in this style: "parallel"; empty if no style says it.
    [[nodiscard]] QString wrapOf(const QString& style) const
    {
        return shapeValue(&Style::wrap, style);
    }
    [[nodiscard]] CellBorders bordersOfCell(const QString& style) const
    {
        return m_cells.value(style);
    }
    /// The master page of the page that a paragraph or table in this style begins; empty if it
    /// begins none.
    [[nodiscard]] QString masterPageOf(const QString& family, const QString& style) const;
    /// Whether the objects of a layer are not printed.
    [[nodiscard]] bool hidesLayer(QStringView layer) const
    {
        return !layer.isEmpty() && m_hiddenLayers.contains(layer.toString());
    }
    [[nodiscard]] bool numbersLines() const { return m_numbersLines; }
    /// Whether a style gives texts the size of their letters.
    [[nodiscard]] bool sizesText(const QString& style) const;
    [[nodiscard]] bool sizesShapeText(const QString& style) const;

private:
    struct Style
    {
        DroppedProperties dropped;
        bool isSized = false; ///< it gives a size of letters
        bool hasTabStops = false;
        bool isHidden = false;
        bool hasNoNumbers = false; ///< although it is that of a heading
        // As written; empty if not given by the style or its parents. Those of the default style
        // are not included: a paragraph's default is weaker than the style of its shape.
        QString font;
        QString color;
        QString fill;
        QString fillColor;
        QString opacity;
        QString background;
        QString stroke;
        QString strokeWidth;
        QString wrap;
        QString growsHeight;
    };

    /// An attribute whose value is kept as written.
    struct Value
    {
        QLatin1String group;
        QLatin1String attribute;
        QString Style::*value;
    };
    static const std::array<Value, 9> Values;

    [[nodiscard]] Style& current();
    [[nodiscard]] const Style& textStyle(const QString& name) const;
    [[nodiscard]] const Style& shapeStyle(const QString& name) const;
    void takeLayer(const QXmlStreamAttributes& attributes);
    void takeCell(const QXmlStreamAttributes& attributes);
    void noteCellEffect(const QString& effect, bool isThere);
    void takeMasterPage(const QString& family, const QString& name, const QString& parent,
                        const QXmlStreamAttributes& attributes);
    void takeSection(const QString& name, const QXmlStreamAttributes& attributes);
    void startStyle(const QXmlStreamAttributes& attributes, bool isDefault);
    void takeProperties(const QString& group, const QXmlStreamAttributes& attributes);
    [[nodiscard]] QString firstOf(QString Style::*value, const QString& text,
                                  const QString& paragraph, const QString& shape) const;
    [[nodiscard]] QString shapeValue(QString Style::*value, const QString& style) const;

    QHash<QString, Style> m_texts;
    QHash<QString, Style> m_shapes;
    QString m_sectionName; ///< of the style that is read; empty if it is not one of a section
    QHash<QString, LossSet> m_sections;
    QHash<QString, QString> m_faces; ///< families by the names of their declarations
    Style m_defaultText;
    Style m_defaultShape;
    Style* m_current = nullptr;
    Style m_ignored;
    QString m_cellName; ///< of the style that is read; empty if it is not one of a table or cell
    QHash<QString, CellBorders> m_cells;
    QHash<QString, QStringList> m_cellEffects;
    QString m_listName; ///< of the list style that was read last
    QSet<QString> m_pictureLists;
    QHash<QString, QString> m_masterPages; ///< by family and style: "table/Address"
    QSet<QString> m_hiddenLayers;
    QSet<int> m_numberedLevels; ///< of headings
    bool m_numbersLines = false;
    bool m_isInList = false; ///< in a level of a list style
};

} // namespace migration

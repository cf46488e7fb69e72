#pragma once

#include <QHash>
#include <QString>

#include <optional>

namespace repair {

class Node;

/// Attributes by name.
using Properties = QHash<QString, QString>;

/// What a style states for a shape, its paragraphs and its characters.
struct StyleProperties
{
    Properties graphic;
    Properties paragraph;
    Properties text;
    /// The list of a paragraph. Empty takes back that of a parent.
    std::optional<QString> list;
    /// The master page of the page that begins with the paragraph or table. Empty takes back that
    /// of a parent.
    std::optional<QString> masterPage;

    /// Takes over what another style states; percentages of font sizes are resolved.
    void overlay(const StyleProperties& other);
};

/// Of a list of families, the first one that can be shown; the first one if none can.
[[nodiscard]] QString shownFamily(const QString& families);

/// The styles of a document, with everything that they inherit.
class StyleTable
{
public:
    StyleTable() = default;
    StyleTable(const Node& styles, const Node& content);

    /// A style with its parents; with the default style of its family if requested. An unknown
    /// name gives the default style alone.
    [[nodiscard]] StyleProperties resolved(const QString& family, const QString& name,
                                           bool withDefault) const;
    /// The indents that a paragraph has in place of those of its list: its own, and those of its
    /// styles that are more specific than the one that states the list.
    [[nodiscard]] Properties indentOverList(const QString& paragraphStyle) const;
    /// The style that an automatic one is based on; the name itself for others.
    [[nodiscard]] QString namedStyle(const QString& paragraphStyle) const;
    /// Adds a style that inherits nothing but the defaults.
    void add(const QString& family, const QString& name, const StyleProperties& properties);
    /// The family of a font declaration; the name itself if it is not declared.
    [[nodiscard]] QString fontFamily(const QString& declaration) const;
    /// A gradient, hatch, marker, fill image, dash or list style; null if it is unknown.
    [[nodiscard]] const Node* named(const QString& tag, const QString& name) const;

private:
    struct Style
    {
        QString parent;
        StyleProperties own;
        bool isAutomatic = false;
    };

    void readStyles(const Node* container);
    void readFonts(const Node& root);
    [[nodiscard]] static StyleProperties ownProperties(const Node& style);

    [[nodiscard]] StyleProperties resolve(const QString& family, const QString& name,
                                          bool withDefault) const;

    /// The results of resolved(): thousands of shapes share a few styles.
    mutable QHash<QString, StyleProperties> m_resolved;
    QHash<QString, Style> m_styles; // by family and name
    QHash<QString, StyleProperties> m_defaults;
    QHash<QString, QString> m_fonts;
    QHash<QString, const Node*> m_named; // by tag and name
};

} // namespace repair

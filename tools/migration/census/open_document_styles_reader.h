#pragma once

#include "migration/census/open_document_styles.h"
#include "migration/census/open_document_walker.h"
#include "migration/model/census.h"

#include <QList>
#include <QString>
#include <QStringView>
#include <QXmlStreamAttributes>

#include <optional>

namespace migration {

/// Size and margins of a page. The lengths are as written in the document, with their unit.
struct PageLayout
{
    QString name;
    QString width;
    QString height;
    bool hasMargins = false;
    bool hasShadow = false;
    bool hasColumns = false;
    bool isSizeAssumed = false; ///< by the repair: the document states none
};

/// The objects in the background of the page.
struct MasterPage
{
    QString name;
    QString layout;
    Census census;
};

/// The content of styles.xml.
struct Styles
{
    StyleBook book;
    QList<PageLayout> layouts;
    QList<MasterPage> masterPages;
};

/// Reads the styles document: styles, page layouts, and the objects on its master pages.
class StylesReader
{
public:
    explicit StylesReader(Styles& styles)
        : m_styles(styles)
    {}

    /// The start of an element, by its usual name; its characters; its end, in the order of the
    /// document.
    void open(const QString& name, const QXmlStreamAttributes& attributes);
    void text(QStringView characters);
    void close();

private:
    void openOutside(const QString& name, const QXmlStreamAttributes& attributes);
    void openOnMasterPage(const QString& name, const QXmlStreamAttributes& attributes);

    Styles& m_styles;
    bool m_isInLayout = false;
    int m_depth = 0;
    int m_masterDepth = 0; // 0 outside master pages
    int m_walkDepth = 0;   // 0 where nothing is counted
    int m_skipDepth = 0;   // 0 where nothing is skipped
    std::optional<OpenDocumentWalker> m_walker;
};

} // namespace migration

#pragma once

#include "migration/census/open_document_names.h"
#include "migration/census/open_document_styles.h"
#include "migration/model/census.h"

#include <QList>
#include <QString>
#include <QStringView>
#include <QXmlStreamAttributes>

#include <optional>
#include <vector>

namespace migration {

/// Counts the objects in the body of an OpenDocument document, element by element.
///
/// A shape, a line and a picture is an object, and so is the text of a shape, whatever its
/// length. A text frame is a box and a text. In the running text, each piece of one format
/// is an object. Where nothing is read, such as in tables, each paragraph is one.
class OpenDocumentWalker
{
public:
    /// @param unit   the unit of the page, two letters
    OpenDocumentWalker(Census& census, const StyleBook& styles, const QString& unit);

    /// Starts in a place whose objects are all lost, to walk over a part of a document only.
    void startLost(LossKind kind);

    /// The start of an element, by its usual name; its characters; its end, in the order of the
    /// document.
    void open(const QString& name, const QXmlStreamAttributes& attributes);
    void text(QStringView characters);
    /// A comment or an instruction, which divides a text.
    void divide();
    void close();

    /// The master page of the first page; empty when that names none.
    [[nodiscard]] const QString& masterPage() const { return m_masterPage; }
    /// Whether the document is a text.
    [[nodiscard]] bool hasRunningText() const { return m_hasRunningText; }

private:
    /// The role of an element. Each role has a function for child elements.
    enum class Spot : quint8 {
        Outside,
        Body,
        RunningText,
        Drawing,
        Page,
        Paragraph, ///< of the running text
        Run,       ///< a piece of such a paragraph
        Shape,
        TextBox,
        ShapeParagraph,
        ShapeRun,
        Line,
        Frame,
        Lost,
        LostParagraph,
        Ignored,
    };

    struct Place
    {
        Spot spot = Spot::Outside;
        LossKind lost = LossKind::UnknownObject; ///< of Lost and LostParagraph
        qsizetype object = -1;                   ///< index of the shape or frame
        bool hasText = false;
        bool hasParagraph = false;
        bool isDecided = false;    ///< a frame whose kind is known
        bool isOnPage = false;     ///< a frame that is anchored to the page
        bool hasPosition = false;  ///< a frame with a position
        bool isObject = false;     ///< a lost object: its texts are not those of its parents
        qsizetype appearance = -1; ///< of the shape or frame
        bool hasLine = false;      ///< a paragraph of its text has begun
        bool hasLostParts = false;
        bool isPageNumber = false; ///< whose value is that of the label's page
        bool isVariable = false;   ///< whose value may differ from the file's
        QString text = {};
        QStringList families = {};
        QList<QColor> colors = {};
        LossSet textChanges = {};
        QString style = {};
        std::optional<QRectF> box = {}; ///< millimeters; that of the parent if it has none
    };

    using Attributes = QXmlStreamAttributes;

    void openChild(const QString& name, const Attributes& attributes);
    void noteFirstPage(const QString& name, const Attributes& attributes);
    void openInBody(const QString& name);
    void openInRunningText(const QString& name, const Attributes& attributes);
    void openInDrawing(const QString& name, const Attributes& attributes);
    void openInPage(const QString& name, const Attributes& attributes);
    void openInParagraph(const QString& name, const Attributes& attributes);
    void openInRun(const QString& name, const Attributes& attributes);
    void openInShape(const QString& name, const Attributes& attributes);
    void openInShapeParagraph(const QString& name, const Attributes& attributes);
    void openInShapeRun(const QString& name, const Attributes& attributes);
    void openInFrame(const QString& name, const Attributes& attributes);
    void openInLost(const QString& name, const Attributes& attributes);

    void openParagraph(const QString& name, const Attributes& attributes);
    void notePageBreak();
    void openRun(const QString& name, const Attributes& attributes);
    void openDrawing(const DrawingElement& element, const QString& name,
                     const Attributes& attributes);
    void openFrame(const Attributes& attributes);
    void openShapeParagraph(const Attributes& attributes);
    void openLostPart(const QString& name, LossKind otherwise);
    void openLost(LossKind kind, const QString& name, const Attributes& attributes = {});
    void noteLostLook();
    void noteLayout(const QString& name, const Attributes& attributes);
    void noteSection(const QString& name, const Attributes& attributes);
    void noteTab(const QString& name);
    void openIgnored(const QString& name);
    void push(Spot spot);
    void addLost(CountedObject object, const std::optional<QRectF>& box);

    void closeParagraph();
    void closeShapeText(const Place& place);
    void takeChunk();
    void markText();

    [[nodiscard]] LossSet changesOfShape(const QString& name, const Attributes& attributes);
    void noteGeometry(const Attributes& attributes, LossSet& changes);
    void noteField(const QString& name, const Attributes& attributes, LossSet& changes);
    void takeText(QStringView characters);
    void startLine();
    void openInTable(const QString& name, const Attributes& attributes);
    void closeTable();
    void noteAnchor(const Attributes& attributes);
    [[nodiscard]] qsizetype addAppearance(const QString& name, const Attributes& attributes);
    [[nodiscard]] qsizetype addTextAppearance(const Place& look, QString text);
    [[nodiscard]] Place* nearestShape();
    [[nodiscard]] const Place* innermostLostObject() const;
    void addShapeText(LossSet changes);

    Census& m_census;
    const StyleBook& m_styles;
    QString m_unit;
    std::vector<Place> m_places;
    /// The numbers of places outside the tables that are open.
    std::vector<std::size_t> m_tables;
    std::optional<QRectF> m_box; ///< of the element that is being opened
    QString m_masterPage;
    bool m_hasRunningText = false;
    bool m_isTextBegun = false; ///< running text has its first paragraph or table
    int m_pages = 0;
    /// Texts of the paragraph that is open: frames in it come before them.
    QList<CountedObject> m_runs;
    LossSet m_paragraphChanges;
    LossSet m_runChanges;
    bool m_chunkHasText = false;
    QString m_chunk;
    QString m_paragraphStyle;
    bool m_isNumbered = false; ///< the heading that is open
    QString m_lineStyle;       ///< of the paragraph that is open, wherever it is
    QString m_runStyle;
    Place m_paragraphLook;
    Place m_runLook;
};

} // namespace migration

#pragma once

#include "repair/object_items.h"
#include "repair/xml_tree.h"

#include <QHash>
#include <QList>
#include <QMap>

#include <memory>

namespace repair {

class Document;
struct TextPlace;

// Notes of a text are at the bottom of the page that cites them. Each is a text box of its own,
// and leaves a mark where it is cited.

/// Of a text box: it is a note.
inline const QString NoteAttribute = QLatin1String("labelport:note");
/// The side of a mark, see MarksAttribute, that a note left.
inline const QString NoteSide = QLatin1String("note");

/// Takes the text of a footnote as a text box; its citation stays, behind a mark. Other notes stay
/// as they are, and long ones, which may need more than a page.
void takeNote(Document& document, std::unique_ptr<Node>& note, const TextPlace& place,
              Node::Children& taken);

/// How many characters the notes have that a paragraph of a page cites.
class NoteLengths
{
public:
    explicit NoteLengths(const Node& page);
    [[nodiscard]] qsizetype citedIn(const Node& paragraph) const;

private:
    QHash<QString, qsizetype> m_lengths; // by mark
};

/// The notes of a page whose texts are placed.
class PageNotes
{
public:
    explicit PageNotes(const QMap<int, ObjectItems>& objects);

    /// How much room the notes need that are cited above a place of the page.
    [[nodiscard]] double heightAbove(double y) const;
    /// Puts the notes above the bottom of the page, but below its text.
    void place(double pageBottom, double textBottom) const;

private:
    struct Note
    {
        ObjectItems items;
        double cited = 0.0; // down the page
        double height = 0.0;
    };

    QList<Note> m_notes;
};

} // namespace repair

#pragma once

#include "migration/model/appearance.h"
#include "migration/model/loss_kinds.h"

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <bitset>
#include <map>
#include <optional>

/// What a file contains, object by object.
namespace migration {

/// What an object should become on the label.
enum class ObjectClass : quint8 { Shape, Line, Text, Barcode, Picture, Symbol };
inline constexpr int ObjectClasses = 6;

/// A set of kinds of losses and changes.
class LossSet
{
public:
    void add(LossKind kind) { m_bits.set(static_cast<std::size_t>(kind)); }
    void add(const LossSet& other) { m_bits |= other.m_bits; }
    [[nodiscard]] bool has(LossKind kind) const
    {
        return m_bits.test(static_cast<std::size_t>(kind));
    }
    [[nodiscard]] bool isEmpty() const { return m_bits.none(); }
    template <class Kinds>
    void remove(const Kinds& kinds)
    {
        for (const LossKind kind : kinds) {
            m_bits.reset(static_cast<std::size_t>(kind));
        }
    }
    bool operator==(const LossSet&) const = default;

private:
    std::bitset<static_cast<std::size_t>(LossKind::Other) + 1> m_bits;
};

inline constexpr int NoBarcodeType = -1;

/// One object of the file.
struct CountedObject
{
    ObjectClass objectClass = ObjectClass::Shape;
    /// Why no reader imports it; nothing for an object that should be imported.
    std::optional<LossKind> lost = {};
    /// The changes that its import causes.
    LossSet changes = {};
    /// Its content comes from a data source.
    bool needsSource = false;
    /// A text with a placeholder for its data source among other words.
    bool hasPlaceholder = false;
    /// The file's number of a barcode's type, for comparisons.
    int barcodeType = NoBarcodeType;
    /// Where a lost object was, in millimeters from the page's corner; nothing if unknown.
    std::optional<QRectF> place = {};
    /// Of a lost object on a further page of a drawing, from 2.
    int page = 0;
    /// Index in Census::appearances; -1 if only its number is known.
    qsizetype appearance = -1;
};

/// Longest detail that is kept, in characters. Longer ones end in an ellipsis.
inline constexpr qsizetype LongestDetail = 80;

/// How often something occurred, and the names of the first objects concerned.
struct Tally
{
    static constexpr qsizetype MaximumDetails = 12;
    qint64 count = 0;
    QStringList details;
    /// Keeps a detail, shortened to LongestDetail, unless it is known or there are enough.
    void addDetail(const QString& detail);
};

/// The content of a file.
struct Census
{
    /// In the order of the file, each once.
    QList<CountedObject> objects;
    /// Losses and changes that concern no single object, with their numbers. For those that do,
    /// only names: their number is that of the objects.
    std::map<LossKind, Tally> tallies;
    /// Vector drawings among the pictures that should be imported.
    qint64 drawings = 0;
    /// What the objects look like, of an OpenDocument file.
    QList<Appearance> appearances;
    /// The complete texts of its paragraphs.
    QStringList paragraphs;
    /// Headings that the document shows with a number.
    QStringList numberedHeadings;
    /// Cells of tables whose borders repair does not draw: those with dots or dashes, and in tables
    /// within tables.
    qint64 otherBorderedCells = 0;
    /// Sizes, in points, of objects that may have text on both sides. A height of 0 follows from
    /// the content.
    QList<QSizeF> sizesBetweenText;
    /// Size of its page in points; 0 if unknown.
    QSizeF pageSize;
    /// Why the number of objects is unknown; empty if it is known.
    QString unknown;

    /// Counts losses that concern no single object.
    void note(LossKind kind, qint64 count = 1, const QString& detail = {});
    /// Keeps the name of an object with such a loss, without counting it.
    void detail(LossKind kind, const QString& detail);
};

} // namespace migration

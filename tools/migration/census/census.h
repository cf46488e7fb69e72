#pragma once

#include "migration/losses/loss_kinds.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

/// What a file holds, counted from its bytes without the readers.
///
/// A reader that passes something over does not tell. So the objects of a file are counted
/// a second time by code that shares nothing with the readers, and compared with what is on
/// the label.
namespace migration {

/// What an object becomes on a label.
enum class ObjectClass : quint8 { Shape, Line, Text, Barcode, Picture, Symbol };
inline constexpr int kObjectClasses = 6;

/// A set of kinds of change.
class LossSet
{
public:
    void add(LossKind kind) { m_bits |= bit(kind); }
    void add(LossSet other) { m_bits |= other.m_bits; }
    [[nodiscard]] bool has(LossKind kind) const { return (m_bits & bit(kind)) != 0; }
    [[nodiscard]] bool isEmpty() const { return m_bits == 0; }
    bool operator==(const LossSet&) const = default;

private:
    static constexpr quint64 bit(LossKind kind) { return quint64(1) << static_cast<int>(kind); }
    quint64 m_bits = 0;
};
static_assert(static_cast<int>(LossKind::Other) < 64);

inline constexpr int kNoBarcodeType = -1;

/// One object of the file.
struct CountedObject
{
    ObjectClass objectClass = ObjectClass::Shape;
    /// Why no reader takes it; nothing for an object that is to come over.
    std::optional<LossKind> lost = {};
    /// What changes on its way.
    LossSet changes = {};
    /// It had content from a data source.
    bool wantsSource = false;
    /// A text that names its data source among other words.
    bool hasPlaceholder = false;
    /// The file's own number of a barcode's type, where it is to be compared.
    int barcodeType = kNoBarcodeType;
};

/// How often something was met, and the first names of what it was about.
struct Tally
{
    static constexpr qsizetype MaximumDetails = 12;
    qint64 count = 0;
    QStringList details;
    void addDetail(const QString& detail);
};

/// What a file holds.
struct Census
{
    /// In the order of the file, each once.
    QList<CountedObject> objects;
    /// Losses and changes that are about no single object, with how often, and names for
    /// those that are (whose count is that of the objects).
    std::map<LossKind, Tally> tallies;
    /// Vector drawings among the pictures that are to come over.
    qint64 drawings = 0;
    /// Why it is not known how many objects there are; empty when it is.
    QString unknown;

    void note(LossKind kind, qint64 count = 1, const QString& detail = {});
    void detail(LossKind kind, const QString& detail);
};

/// Most objects that are counted; every reader takes fewer.
inline constexpr qsizetype kMaximumObjects = 1'000'000;
/// Largest file that is counted, in bytes: as much as the most generous reader takes.
inline constexpr qint64 kMaximumFile = 256LL * 1024 * 1024;
/// Bytes of a package's members, as many as its reader takes.
inline constexpr qint64 kMaximumStyles = 16LL * 1024 * 1024;
inline constexpr qint64 kMaximumContent = 48LL * 1024 * 1024;
/// Longest name of what was met that is kept, in letters.
inline constexpr qsizetype kLongestDetail = 80;

[[nodiscard]] Census countTavrel(const QByteArray& file);
[[nodiscard]] Census countOrvanta(const QByteArray& file);
[[nodiscard]] Census countOpenDocument(const QByteArray& file);
[[nodiscard]] Census countSavedLabel(const QByteArray& file);

/// Bytes that a saved label's tree may take: as many as where it is opened.
inline constexpr qint64 kMaximumSavedTree = 3LL << 30;

/// That a file is too large to be counted, for a person.
[[nodiscard]] QString tooLargeToCount();
/// Counting ends with the first object too many: then it is not known how many there are.
void refuseTooMany(Census& census);

/// Reads a file to count in it; empty, and `unknown` says why, for one that is too large
/// or cannot be read.
[[nodiscard]] QByteArray bytesToCount(const QString& fileName, QString& unknown);

} // namespace migration

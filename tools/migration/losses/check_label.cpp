#include "migration/losses/check_label.h"

#include "migration/losses/check_covering.h"
#include "migration/losses/check_numbers.h"
#include "migration/losses/check_overlap.h"
#include "migration/losses/check_rendering.h"
#include "migration/losses/matching.h"
#include "migration/losses/text_wrap.h"
#include "migration/model/known_fonts.h"
#include "workbench/items/units.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

using workbench::PointsPerMillimeter;
// Points: a line without a width is drawn at least so wide in print.
constexpr double ThinnestLine = 0.3;
constexpr double WidthRatio = 4.0 / 3.0;
// Factors by which readers enlarge a document in millimeters, and in points.
constexpr std::array Enlargements{100.0, 72.0};
// Points: between words of one line.
constexpr double SmallestGap = 1.0;

double scaleOf(const Census& census, const LabelFacts& label)
{
    const double ratio =
        census.pageSize.width() > 0.0 ? label.pageSize.width() / census.pageSize.width() : 1.0;
    for (const double enlargement : Enlargements) {
        if (std::abs(ratio / enlargement - 1.0) < 0.02) {
            return enlargement;
        }
    }
    return 1.0;
}

// Letters: shorter parts are found in any text, also of another page.
constexpr qsizetype ShortestPart = 8;
// Of 255, in each channel: a difference that is not visible.
constexpr int SameColor = 16;

// Line breaks are shown: they may be all that differs.
QString onOneLine(QString text)
{
    return text.replace(QChar::LineFeed, u" ⏎ "_s);
}

/// One comparison of a label with its document.
class LabelCheck
{
public:
    LabelCheck(const Matching& matching, LabelFacts& label, double scale, bool isRepaired)
        : m_matching(matching)
        , m_label(label)
        , m_scale(scale)
        , m_isRepaired(isRepaired)
    {}

    void run()
    {
        for (const Pair& pair : m_matching.shapes) {
            checkPlace(pair);
            checkAppearance(pair);
        }
        for (const Pair& pair : m_matching.texts) {
            checkText(pair);
            checkFonts(pair);
            checkColor(pair);
        }
        checkFontsOfParts();
        checkGaps();
    }

private:
    void add(qsizetype item, LossKind kind, const QString& detail = {})
    {
        m_label.items[item].changes.add(kind);
        if (!detail.isEmpty()) {
            m_label.tallies[kind].addDetail(detail);
        }
    }

    void checkPlace(const Pair& pair);
    void checkAppearance(const Pair& pair);
    void checkText(const Pair& pair);
    void checkFonts(const Pair& pair);
    void checkFontsOfParts();
    void checkColor(const Pair& pair);
    void checkGaps();

    const Matching& m_matching;
    LabelFacts& m_label;
    double m_scale;
    bool m_isRepaired;
};

void LabelCheck::checkPlace(const Pair& pair)
{
    const Appearance& wanted = *pair.appearance;
    if (wanted.outline.isEmpty()) {
        return;
    }
    const QRectF box = m_label.items.at(pair.item).outline.boundingRect();
    const QRectF place = wanted.outline.boundingRect();
    const QRectF seen(box.topLeft() / m_scale, box.size() / m_scale);
    double away =
        std::max({std::abs(seen.left() - place.left()), std::abs(seen.right() - place.right()),
                  std::abs(seen.top() - place.top())});
    if (!wanted.grows) {
        away = std::max(away, std::abs(seen.bottom() - place.bottom()));
    }
    if (away > PointsPerMillimeter) {
        add(pair.item, LossKind::Moved, u"%1 mm"_s.arg(away / PointsPerMillimeter, 0, 'f', 0));
    }
}

void LabelCheck::checkAppearance(const Pair& pair)
{
    const ItemFacts& item = m_label.items.at(pair.item);
    const Appearance& wanted = *pair.appearance;
    const bool isWhite = item.fill.isValid() && item.fill.rgb() == QColor(Qt::white).rgb();
    if (item.objectClass == ObjectClass::Shape && item.isFilled && !isWhite &&
        wanted.isFilled == false) {
        add(pair.item, LossKind::FillAdded);
    }
    // Pens do not grow with a page that is too large; the enlargement is reported by itself.
    const bool isDrawn =
        item.objectClass == ObjectClass::Shape || item.objectClass == ObjectClass::Line;
    if (isDrawn && wanted.penWidth && item.penWidth && m_scale == 1.0) {
        const double ratio =
            std::max(*item.penWidth, ThinnestLine) / std::max(*wanted.penWidth, ThinnestLine);
        if (ratio > WidthRatio || ratio < 1.0 / WidthRatio) {
            add(pair.item, LossKind::PenWidth);
        }
    }
}

void LabelCheck::checkText(const Pair& pair)
{
    if (pair.appearance->hasLostParts && !pair.isExact) {
        return; // reported as lost
    }
    const QString wanted = canonical(pair.text);
    const QString seen = canonical(m_label.items.at(pair.item).text);
    if (wanted != seen) {
        add(pair.item, LossKind::TextDiffers, onOneLine(wanted) + u" → "_s + onOneLine(seen));
    }
}

// "Arial1" is the name of a second declaration of Arial.
QString withoutNumber(QString family)
{
    while (!family.isEmpty() && family.back().isDigit()) {
        family.chop(1);
    }
    return family.trimmed();
}

QStringList familiesSeen(const ItemFacts& item)
{
    QStringList seen;
    for (const QString& family : item.families) {
        seen.append(item.isFormatted ? familySeenInFormats(family) : familySeen(family));
    }
    return seen;
}

bool isSeen(const QString& family, const QStringList& seen)
{
    // Documents made from PDF files write "LiberationSans".
    const auto plain = [](QString name) { return name.remove(u' ').toCaseFolded(); };
    return std::any_of(seen.begin(), seen.end(), [&](const QString& each) {
        return plain(each) == plain(family) || plain(each) == plain(withoutNumber(family));
    });
}

void LabelCheck::checkFonts(const Pair& pair)
{
    const QStringList seen = familiesSeen(m_label.items.at(pair.item));
    if (seen.isEmpty() || !pair.isExact) {
        return;
    }
    for (const QString& family : pair.appearance->families) {
        if (!isSeen(family, seen)) {
            add(pair.item, LossKind::FontReplaced, family + u" → "_s + seen.constFirst());
        }
    }
}

// Running text of several formats is one item: which part has which font is unknown.
void LabelCheck::checkFontsOfParts()
{
    QStringList seen;
    for (const ItemFacts& item : m_label.items) {
        seen.append(familiesSeen(item));
    }
    QSet<QString> checked;
    for (const Appearance* part : m_matching.parts) {
        for (const QString& family : part->families) {
            const bool isLong = squeezed(part->text).size() >= ShortestPart;
            if (isLong && !checked.contains(family) && !isSeen(family, seen)) {
                ++m_label.tallies[LossKind::FontReplaced].count;
                m_label.tallies[LossKind::FontReplaced].addDetail(family + u" → "_s +
                                                                  familySeenInFormats(family));
                checked.insert(family);
            }
        }
    }
}

bool differVisibly(const QColor& a, const QColor& b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())}) > SameColor;
}

// Repair sets the colors that the reader drops. Without repair, the census knows them.
void LabelCheck::checkColor(const Pair& pair)
{
    const QColor& wanted = pair.appearance->textColor;
    const QColor& seen = m_label.items.at(pair.item).textColor;
    if (m_isRepaired && pair.isExact && pair.appearance->isColorKnown && wanted.isValid() &&
        seen.isValid() && differVisibly(wanted, seen)) {
        add(pair.item, LossKind::TextColor, wanted.name() + u" → "_s + seen.name());
    }
}

// Runs of one paragraph have items of their own. The space between two words is in neither when
// the parser drops it.
void LabelCheck::checkGaps()
{
    for (qsizetype index = 1; index < m_matching.texts.size(); ++index) {
        const Pair& left = m_matching.texts.at(index - 1);
        const Pair& right = m_matching.texts.at(index);
        const int paragraph = right.appearance->paragraph;
        if (paragraph == 0 || left.appearance->paragraph != paragraph || left.item == right.item) {
            continue;
        }
        const ItemFacts& before = m_label.items.at(left.item);
        const ItemFacts& after = m_label.items.at(right.item);
        const QRectF first = before.outline.boundingRect();
        const QRectF second = after.outline.boundingRect();
        const bool isOneLine = std::abs(first.top() - second.top()) < first.height() / 2.0;
        const bool touches = std::abs(second.left() - first.right()) < SmallestGap;
        const bool hasSpace = before.text.back().isSpace() || after.text.front().isSpace();
        if (isOneLine && touches && !hasSpace && right.isExact && left.isExact &&
            right.appearance->followsBlank) {
            add(right.item, LossKind::TextDiffers,
                before.text.simplified() + u' ' + after.text.simplified() + u" → "_s +
                    before.text.simplified() + after.text.simplified());
        }
    }
}

} // namespace

void checkLabel(const Census& original, const workbench::Canvas& canvas, const Reading& reading,
                LabelFacts& label)
{
    if (original.appearances.isEmpty()) {
        return;
    }
    const double scale = scaleOf(original, label);
    const Matching matching = matchItems(original, label, reading.page, scale, reading.isRepaired);
    LabelCheck(matching, label, scale, reading.isRepaired).run();
    const bool comparesItems = checkCovering(matching, label);
    const QList<DrawnText> texts = drawnTexts(canvas, label);
    const bool comparesTexts = checkOverlap(texts, matching, scale, label);
    if (!comparesItems || !comparesTexts || matching.isCut) {
        label.pageChanges.add(LossKind::LogCut);
    }
    checkRendering(canvas, matching, label);
    checkNumbers(original, label);
    if (reading.isRepaired) {
        label.textsOnOneSide = textsOnOneSide(original, texts, label);
        label.missingTexts = matching.missingTexts; // they may be on another page
        return;
    }
    for (const QString& text : matching.missingTexts) {
        noteMissingText(text, label.tallies[LossKind::TextDiffers]);
    }
}

} // namespace migration

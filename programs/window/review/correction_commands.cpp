#include "window/review/correction_commands.h"

#include "migration/model/loss_kinds.h"
#include "window/sources/source_table_model.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGraphicsItem>
#include <QInputDialog>
#include <QUndoStack>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct CorrectionCommandsTr
{
    Q_DECLARE_TR_FUNCTIONS(window::Corrections)
};

using Items = QList<workbench::CanvasItem*>;

constexpr double MillimetersPerPoint = 25.4 / 72.0;
// By which the reader enlarges a document whose page is measured in millimeters.
constexpr double EnlargedFactor = 100.0;

Items itemsOf(const Issue& issue, OpenLabel& label)
{
    Items items;
    for (const int index : issue.items) {
        items.append(label.canvas->items().at(index));
    }
    if (items.isEmpty()) {
        for (workbench::CanvasItem* item : label.canvas->items()) {
            if (item->graphicsItem()->isSelected()) {
                items.append(item);
            }
        }
    }
    return items;
}

bool push(QUndoStack& stack, const QString& text, const QList<ItemChange>& changes)
{
    if (changes.isEmpty()) {
        return false;
    }
    stack.push(new ChangeItems(text, changes));
    return true;
}

// The fonts that are not installed, or all fonts of the items.
QStringList fontsToReplace(const Items& items)
{
    QStringList all;
    QStringList missing;
    for (const workbench::CanvasItem* item : items) {
        const QString family = familyOf(item->values());
        if (!family.isEmpty() && !all.contains(family)) {
            all.append(family);
            if (!QFontDatabase::hasFamily(family)) {
                missing.append(family);
            }
        }
    }
    return missing.isEmpty() ? all : missing;
}

bool replaceFont(const Issue& issue, OpenLabel& label, QUndoStack& stack, QWidget* window)
{
    const Items& all = label.canvas->items();
    const QStringList from = fontsToReplace(issue.items.isEmpty() ? all : itemsOf(issue, label));
    const QStringList families = QFontDatabase::families();
    // The font that is already shown instead.
    const qsizetype shown = families.indexOf(QFontInfo(QFont(from.value(0))).family());
    bool isChosen = false;
    const QString to = QInputDialog::getItem(
        window, CorrectionCommandsTr::tr("Replace Font"),
        CorrectionCommandsTr::tr("Font for all texts in %1:").arg(from.join(u", "_s)), families,
        static_cast<int>(std::max<qsizetype>(shown, 0)), false, &isChosen);
    return isChosen &&
           push(stack, CorrectionCommandsTr::tr("Replace Font"), withFont(all, from, to));
}

bool setColor(const Issue& issue, OpenLabel& label, QUndoStack& stack, QWidget* window)
{
    const QColor color =
        QColorDialog::getColor(Qt::black, window, CorrectionCommandsTr::tr("Set Color"));
    return color.isValid() && push(stack, CorrectionCommandsTr::tr("Set Color"),
                                   withColor(itemsOf(issue, label), color));
}

QString paperText(const QSizeF& points)
{
    const auto millimeters = [](double length) {
        return QString::number(std::round(length * MillimetersPerPoint * 10.0) / 10.0);
    };
    return CorrectionCommandsTr::tr("%1 × %2 mm")
        .arg(millimeters(points.width()), millimeters(points.height()));
}

bool rescale(const Issue& issue, OpenLabel& label, QUndoStack& stack, QWidget* window)
{
    const bool isEnlarged =
        issue.code == migration::lossCode(migration::LossKind::MillimetersEnlarged);
    const workbench::PageValues before = label.canvas->page();
    QStringList papers{paperText(isEnlarged ? before.size / EnlargedFactor : before.size)};
    papers += {u"A4: 210 × 297 mm"_s,         u"A5: 148 × 210 mm"_s, u"A6: 105 × 148 mm"_s,
               u"Letter: 215.9 × 279.4 mm"_s, u"100 × 150 mm"_s,     u"100 × 50 mm"_s};
    bool isChosen = false;
    const QString text = QInputDialog::getItem(window, CorrectionCommandsTr::tr("Rescale"),
                                               CorrectionCommandsTr::tr("Size of the paper:"),
                                               papers, 0, true, &isChosen);
    const std::optional<QSizeF> paper = isChosen ? paperOf(text) : std::nullopt;
    if (!paper || before.size.isEmpty()) {
        return false;
    }
    workbench::PageValues after = before;
    after.size = *paper;
    const double factor =
        std::min(paper->width() / before.size.width(), paper->height() / before.size.height());
    stack.beginMacro(CorrectionCommandsTr::tr("Rescale"));
    stack.push(new ChangePage(*label.canvas, after));
    // The reader enlarges lengths in millimeters, but neither fonts nor lines.
    push(stack, {}, scaled(label.canvas->items(), factor, !isEnlarged));
    stack.endMacro();
    return true;
}

bool bind(const Issue& issue, OpenLabel& label, QUndoStack& stack, QWidget* window)
{
    QStringList names;
    const QList<int> sources = label.sources->ids();
    for (const int id : sources) {
        names.append(u"%1: %2"_s.arg(id).arg(sourceTitle(*label.sources->source(id))));
    }
    bool isChosen = false;
    const QString name =
        QInputDialog::getItem(window, CorrectionCommandsTr::tr("Bind to Data Source"),
                              CorrectionCommandsTr::tr("Data source:"), names, 0, false, &isChosen);
    const qsizetype row = names.indexOf(name);
    if (!isChosen || row < 0) {
        return false;
    }
    return push(stack, CorrectionCommandsTr::tr("Bind to Data Source"),
                bound(itemsOf(issue, label), sources.at(row)));
}

} // namespace

QString titleOf(Correction correction)
{
    switch (correction) {
    case Correction::Delete:
        return CorrectionCommandsTr::tr("&Delete Items");
    case Correction::ReplaceFont:
        return CorrectionCommandsTr::tr("Replace F&ont…");
    case Correction::SetColor:
        return CorrectionCommandsTr::tr("Set &Color…");
    case Correction::Rescale:
        return CorrectionCommandsTr::tr("Re&scale…");
    case Correction::Bind:
        break;
    }
    return CorrectionCommandsTr::tr("&Bind to Data Source…");
}

bool applyCorrection(Correction correction, const Issue& issue, OpenLabel& label, QUndoStack& stack,
                     QWidget* window)
{
    switch (correction) {
    case Correction::Delete:
        stack.push(new RemoveItems(CorrectionCommandsTr::tr("Delete Items"), *label.canvas,
                                   itemsOf(issue, label)));
        return true;
    case Correction::ReplaceFont:
        return replaceFont(issue, label, stack, window);
    case Correction::SetColor:
        return setColor(issue, label, stack, window);
    case Correction::Rescale:
        return rescale(issue, label, stack, window);
    case Correction::Bind:
        break;
    }
    return bind(issue, label, stack, window);
}

} // namespace window

// The window with a label of 10,000 items: the time of selecting, moving, undoing and deleting.
//
// bench_window    prints the median times in milliseconds; exit status 1 if one is above 100 ms

#include "bench/measuring.h"
#include "bench/table.h"

#include "window/canvas/canvas_view.h"
#include "window/edit/commands.h"
#include "window/label/label_files.h"
#include "window/main_window.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QSettings>
#include <QTemporaryDir>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int ItemCount = 10'000;
constexpr int Rounds = 5;
constexpr double LargestMilliseconds = 100.0;

window::OpenLabel makeLabel()
{
    window::OpenLabel label;
    label.canvas = std::make_unique<workbench::Canvas>();
    label.sources = std::make_unique<workbench::datasources::DatasourceController>();
    for (int number = 0; number < ItemCount; ++number) {
        workbench::ItemValues values;
        const bool isText = number % 2 == 0;
        values.type = isText ? KestTypes::RichText : KestTypes::Rectangle;
        values.box.size = QSizeF(20.0, 8.0);
        values.placement.position = QPointF(number % 100 * 2.8, number / 100 * 1.4);
        values.placement.z = number;
        values.pen = workbench::PenValues();
        if (isText) {
            values.text = workbench::TextValues{u"Item %1"_s.arg(number), {}};
        }
        label.canvas->addItem(values);
    }
    label.canvas->completeCanvasLoading();
    return label;
}

struct Step
{
    QString name;
    std::function<void()> work;
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    const QString path = folder.filePath(u"many.label"_s);
    window::MainWindow window;
    window.show();
    if (!window::writeLabel(makeLabel(), path).isEmpty() ||
        !window.openFileQuietly(path).isEmpty()) {
        qFatal("The label cannot be saved and opened");
    }
    const auto trigger = [&window](window::ActionId id) { window.action(id).trigger(); };
    const auto item = [&window](int index) {
        return window.session().label()->canvas->items().at(index)->graphicsItem();
    };
    const Step steps[] = {
        {u"select one"_s, [&] { item(ItemCount / 2)->setSelected(true); }},
        {u"move one"_s,
         [&] {
             window.session().moveItems(
                 {{item(ItemCount / 2), item(ItemCount / 2)->pos(), {5, 5}}});
         }},
        {u"undo the move of one"_s, [&] { trigger(window::ActionId::Undo); }},
        {u"delete one"_s, [&] { trigger(window::ActionId::Delete); }},
        {u"undo the deletion of one"_s, [&] { trigger(window::ActionId::Undo); }},
        {u"select all"_s, [&] { trigger(window::ActionId::SelectAll); }},
        {u"select none"_s, [&] { trigger(window::ActionId::SelectNone); }},
    };
    QList<QStringList> rows = {{u"among %1 items"_s.arg(ItemCount), u"ms"_s}};
    QList<QList<double>> seconds(std::size(steps));
    for (int round = 0; round < Rounds; ++round) {
        for (std::size_t step = 0; step < std::size(steps); ++step) {
            seconds[qsizetype(step)].append(bench::secondsOf(steps[step].work));
        }
    }
    bool isFast = true;
    for (std::size_t step = 0; step < std::size(steps); ++step) {
        const double milliseconds = bench::median(seconds.at(qsizetype(step))) * 1000.0;
        isFast = isFast && milliseconds <= LargestMilliseconds;
        rows.append({steps[step].name, QString::number(milliseconds, 'f', 1)});
    }
    bench::printTable(rows);
    window.session().undoStack().setClean();
    return isFast ? 0 : 1;
}

// bench_startup FILE    processor time of each step of a process that imports one label and
//                       writes it as a picture, from program start, with cold caches
#include "bench/measuring.h"
#include "bench/table.h"

#include "workbench/import/label_import.h"
#include "workbench/rendering/page_image.h"

#include <QApplication>
#include <QFontInfo>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double Dpi = 300.0;

/// The steps and their times, in the order of execution.
class Steps
{
public:
    template <class Work>
    void take(const QString& name, const Work& work)
    {
        add(name, bench::secondsOf(work));
    }

    void add(const QString& name, double seconds)
    {
        m_rows.append({name, QString::number(seconds * 1000, 'f', 1)});
        m_sum += seconds;
    }

    void print()
    {
        m_rows.append({u"together"_s, QString::number(m_sum * 1000, 'f', 1)});
        bench::printTable(m_rows);
    }

private:
    QList<QStringList> m_rows = {{u"step"_s, u"ms"_s}};
    double m_sum = 0.0;
};

void require(const QString& error)
{
    if (!error.isEmpty()) {
        qFatal("%s", qPrintable(error));
    }
}

} // namespace

int main(int argc, char** argv)
{
    Steps steps;
    steps.add(u"loading and linking the program"_s, bench::processSeconds());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"*=false"_s);
    std::unique_ptr<QApplication> application;
    steps.take(u"application object, platform plug-in"_s,
               [&] { application = std::make_unique<QApplication>(argc, argv); });
    steps.take(u"first font: list of all fonts"_s,
               [] { (void)QFontInfo(QApplication::font()).pixelSize(); });

    const QString path = QCoreApplication::arguments().value(1);
    workbench::ImportResult label;
    steps.take(u"import"_s, [&] { label = workbench::importLabel(path); });
    require(label.error);
    workbench::PageImage page;
    steps.take(u"drawing"_s, [&] { page = workbench::renderPage(*label.canvas, Dpi); });
    require(page.error);
    const QTemporaryDir folder;
    steps.take(u"PNG"_s,
               [&] { require(workbench::writePng(page.image, folder.filePath(u"a.png"_s))); });
    steps.take(u"giving all back"_s, [&] {
        label = {};
        application.reset();
    });
    steps.print();
    return 0;
}

// embedding FILE: imports a legacy label and lists its items.

#include "controllers.h"
#include "label.h"

#include "host/services/tal_message_box.h"
#include "importer/legacy_template_importer.h"
#include "importer/reader_choice.h"

#include <QApplication>
#include <QTextStream>

namespace {

/// Selects the reader by the file's name.
bool importFile(LegacyTemplateImporter& importer, const QString& fileName)
{
    switch (readerForFile(fileName)) {
    case ReaderKind::Orvanta:
        return importer.importLabelFromOrvantaFile(fileName);
    case ReaderKind::OpenDocument:
        return importer.importLabelFromOpenOfficeFile(fileName);
    case ReaderKind::Tavrel:
        break;
    }
    return importer.importLabelFromTavrelFile(fileName);
}

/// A program with windows would show the box and wait for the user. This box has already printed
/// its message, so it is closed at once; the reader that created it deletes it.
void closeMessage(QWidget* box)
{
    if (auto* message = qobject_cast<TalMessageBox*>(box)) {
        Q_EMIT message->popupHideSignal();
    }
}

void listSources(const Sources& sources, QTextStream& out)
{
    for (const std::unique_ptr<Source>& source : sources.all()) {
        out << "source " << source->kind() << " (" << source->properties().keys().join(u", ")
            << ")\n";
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv); // Required by fonts, pixmaps and the readers.
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2) {
        QTextStream(stderr) << "usage: embedding FILE\n";
        return 2;
    }

    // These outlive the importer, which keeps pointers to them.
    Label label;
    Files files;
    Sources sources;
    LegacyTemplateImporter importer(&label, &files, &sources);
    QObject::connect(&importer, &LegacyTemplateImporter::popupShowSignal, &application,
                     closeMessage);

    if (!importFile(importer, arguments.at(1))) {
        QTextStream(stderr) << "cannot import " << arguments.at(1) << '\n';
        return 1;
    }
    QTextStream out(stdout);
    label.list(out);
    listSources(sources, out);
    return 0;
}

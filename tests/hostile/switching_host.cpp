#include "tests/hostile/switching_host.h"

#include <QFileInfo>

namespace {

bool importBy(LegacyTemplateImporter& importer, const Label& label)
{
    switch (label.reader) {
    case ReaderKind::Orvanta:
        return importer.importLabelFromOrvantaFile(label.path);
    case ReaderKind::OpenDocument:
        return importer.importLabelFromOpenOfficeFile(label.path);
    case ReaderKind::Tavrel:
        break;
    }
    return importer.importLabelFromTavrelFile(label.path);
}

} // namespace

SwitchingHost::SwitchingHost()
{
    m_out.open(QIODevice::WriteOnly);
}

QByteArray SwitchingHost::trace(LegacyTemplateImporter& importer, const Label& label)
{
    m_out.buffer().clear();
    m_out.seek(0);
    recorder::RecordingHost host(m_out);
    canvas.target = host.canvasModel();
    canvas.factory.target = host.canvasModel()->getClassFactory();
    datasources.target = host.datasourceController();
    const bool imported = importBy(importer, label);
    host.hideMessageBoxes();
    host.writeItemStates();
    host.trace().end(imported);
    return m_out.data();
}

#include "window/manual_dialog.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace window {

ManualDialog::ManualDialog(QWidget* parent)
    : QDialog(parent)
    , m_browser(new QTextBrowser(this))
{
    setWindowTitle(tr("Manual"));
    m_browser->setAccessibleName(windowTitle());
    m_browser->setOpenExternalLinks(true);
    m_browser->setSearchPaths({u":/labelport/manual"_s});
    QFile manual(u":/labelport/manual/workbench.md"_s);
    if (manual.open(QIODevice::ReadOnly)) {
        m_browser->document()->setMarkdown(QString::fromUtf8(manual.readAll()));
    }
    m_browser->moveCursor(QTextCursor::Start);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_browser);
    layout->addWidget(buttons);
    resize(820, 640);
}

} // namespace window

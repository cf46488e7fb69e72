#include "window/help/manual_dialog.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

constexpr QSizeF PictureSize(740.0, 480.0);

} // namespace

ManualDialog::ManualDialog(QWidget* parent)
    : QDialog(parent)
    , m_browser(new QTextBrowser(this))
{
    setWindowTitle(tr("Manual"));
    m_browser->setAccessibleName(windowTitle());
    m_browser->setOpenLinks(false);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &ManualDialog::follow);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* back = buttons->addButton(tr("&Back"), QDialogButtonBox::ActionRole);
    back->setEnabled(false);
    connect(back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_browser, &QTextBrowser::sourceChanged, this, &ManualDialog::fitPictures);
    m_browser->setSource(QUrl(u"qrc:/labelport/manual/workbench.md"_s));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_browser);
    layout->addWidget(buttons);
    resize(820, 640);
}

// Pictures of the whole window are wider than the page.
void ManualDialog::fitPictures()
{
    const QTextDocument& page = *m_browser->document();
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
            if (picture.isValid()) {
                const QImage image(u":/labelport/manual/"_s + picture.name());
                QSizeF size = image.size();
                if (size.boundedTo(PictureSize) != size) {
                    size.scale(PictureSize, Qt::KeepAspectRatio);
                }
                picture.setWidth(size.width());
                picture.setHeight(size.height());
                QTextCursor cursor(block);
                cursor.setPosition(part.fragment().position());
                cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
                cursor.setCharFormat(picture);
                break; // the format has changed the parts of the block
            }
        }
    }
}

// A page that the program does not contain would replace the manual by an empty page.
void ManualDialog::follow(const QUrl& link)
{
    const QUrl page = m_browser->source().resolved(link);
    if (page.scheme() == "https"_L1) {
        QDesktopServices::openUrl(page);
    } else if (page.scheme() == "qrc"_L1 && QFile::exists(u':' + page.path())) {
        m_browser->setSource(page);
    }
}

} // namespace window

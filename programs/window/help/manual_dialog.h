#pragma once

#include <QDialog>

class QTextBrowser;

namespace window {

/// The manual of the window, docs/workbench.md, with its pictures.
class ManualDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit ManualDialog(QWidget* parent = nullptr);

    [[nodiscard]] QTextBrowser& browser() { return *m_browser; }

private:
    void fitPictures();
    void follow(const QUrl& link);

    QTextBrowser* m_browser;
};

} // namespace window

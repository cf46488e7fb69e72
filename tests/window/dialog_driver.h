#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <queue>

/// Answers the dialogs that a command opens, in turn, as soon as each is shown. An unexpected
/// dialog is rejected and fails the test, so that no dialog can block it. Progress dialogs appear
/// only on slow machines and close themselves: they are not counted.
class DialogDriver final : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(QDialog&)>;

    DialogDriver();
    ~DialogDriver() override;

    /// Answers the next dialog with this function.
    void expect(Answer answer);
    /// The next dialog is a message box; the button of this role or text is clicked.
    void expectButton(int standardButton);
    void expectButton(const QString& caption);
    /// The next dialog is a file dialog; this file is chosen.
    void expectFile(const QString& fileName);
    void expectCancel();
    /// Each progress dialog is canceled.
    void cancelProgress() { m_cancelsProgress = true; }

    /// The texts of the dialogs that were shown, with their informative texts.
    [[nodiscard]] const QStringList& texts() const { return m_texts; }
    [[nodiscard]] bool isDone() const { return m_answers.empty(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QDialog& dialog);

    std::queue<Answer> m_answers;
    QStringList m_texts;
    bool m_cancelsProgress = false;
};

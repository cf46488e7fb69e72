#include "host/services/tal_message_box.h"

#include "recorder/recording.h"

using namespace Qt::StringLiterals;

// A box that is never shown: its title and text are written to the trace, and the user of the
// recording closes it.

class TalMessageBox::Private
{};

TalMessageBox::TalMessageBox(const QString& title, const QString& text,
                             QFlags<QMessageBox::StandardButton> buttons,
                             QMessageBox::StandardButton defaultButton, QString detail,
                             QMap<QMessageBox::StandardButton, QString> captions)
    : d(std::make_unique<Private>())
{
    setWindowTitle(title);
    // For tests: what the trace does not contain.
    setProperty("text", text);
    setProperty("buttons", buttons.toInt());
    setProperty("defaultButton", int(defaultButton));
    setProperty("detail", detail);
    setProperty("captions", captions.size());
    if (const auto recording = recorder::Recording::current()) {
        recording->call(u"messagebox"_s, "create", title, text);
        recording->addMessageBox(this);
    }
}

TalMessageBox::~TalMessageBox() = default;

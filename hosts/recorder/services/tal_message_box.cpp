#include "host/services/tal_message_box.h"

#include "recorder/recording.h"

using namespace Qt::StringLiterals;

// A box that is never shown: its texts are written to the trace, and the user of the
// recording closes it.

class TalMessageBox::Private
{};

TalMessageBox::TalMessageBox(const QString& title, const QString& text,
                             QFlags<QMessageBox::StandardButton> /*buttons*/,
                             QMessageBox::StandardButton /*defaultButton*/, QString /*detail*/,
                             QMap<QMessageBox::StandardButton, QString> /*captions*/)
    : d(std::make_unique<Private>())
{
    setWindowTitle(title);
    if (const auto recording = recorder::Recording::current()) {
        recording->call(u"messagebox"_s, "create", title, text);
        recording->addMessageBox(this);
    }
}

TalMessageBox::~TalMessageBox() = default;

#pragma once

#include <QStringList>

#include <functional>

class QFileDialog;

/// Plays the user of the next open-file dialog that this thread shows.
///
/// It acts as soon as the dialog waits for its user, and never leaves it open.
class FileDialogDriver
{
public:
    /// The user picks a file, by typing its whole name.
    static void pick(const QString& fileName);
    /// The user presses Escape.
    static void cancel();
    /// Looks at the dialog, then cancels it.
    static void inspect(const std::function<void(const QFileDialog&)>& look);
};

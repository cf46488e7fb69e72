#pragma once

#include <Logger.h>

#include <QString>

/// Codes of what readers refuse or leave out, beyond the messages in reader_messages.h. A code is
/// the category of the log record; it never changes, while the message may be reworded.
namespace refusals {

// The file is not imported.
inline constexpr char ImportRunning[] = "labelport.import-running";
inline constexpr char NotAFile[] = "labelport.not-a-file";
inline constexpr char FileTooLarge[] = "labelport.file-too-large";
inline constexpr char TooManyControls[] = "labelport.too-many-controls";
inline constexpr char PackageUnreadable[] = "labelport.package-unreadable";

// An object is left out, or is on the label without its content.
inline constexpr char ItemRefused[] = "labelport.item-refused";             ///< by the host
inline constexpr char DatasourceRefused[] = "labelport.datasource-refused"; ///< by the host
inline constexpr char PictureTooLarge[] = "labelport.picture-too-large";
inline constexpr char PictureFormat[] = "labelport.picture-format";
inline constexpr char PictureUnreadable[] = "labelport.picture-unreadable";
inline constexpr char TextTooLong[] = "labelport.text-too-long";
inline constexpr char TooManyItems[] = "labelport.too-many-items";
inline constexpr char TooManyNotes[] = "labelport.too-many-notes";

// A part of a package cannot be used. Logged once, however many objects show it.
inline constexpr char PackageMemberUnreadable[] = "labelport.package-member-unreadable";
inline constexpr char PackagePictureUnreadable[] = "labelport.package-picture-unreadable";
inline constexpr char PackageDrawingUnreadable[] = "labelport.package-drawing-unreadable";

/// The category for a log record with this code; null for none. CuteLogger drops records of a
/// category that is not linked to the global logger, so this links it.
[[nodiscard]] inline const char* category(const char* code)
{
    if (code != nullptr) {
        loggerInstance()->logToGlobalInstance(QString::fromLatin1(code), true);
    }
    return code;
}

} // namespace refusals

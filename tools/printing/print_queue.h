#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>

/// Printers of CUPS, through its commands lp and lpstat: they work with every server, need no
/// library, and print exactly the document that they get.
namespace printing {

/// One document for one printer.
struct PrintRequest
{
    QString file;    ///< PDF
    QString printer; ///< empty for the default printer
    QString title;   ///< of the job
    QString media;   ///< paper, as CUPS names it
};

/// The result of a request.
struct Submission
{
    QString job;   ///< its identifier: "zebra-12"
    QString error; ///< user-visible; empty if the printer has accepted the document
};

/// The CUPS name of a paper of this size in millimeters: "Custom.63.5x38.1mm".
[[nodiscard]] QString customMedia(const QSizeF& size);

/// Gives a document to a printer. The document may be deleted afterwards.
[[nodiscard]] Submission submit(const PrintRequest& request);

/// The printers of the system.
struct Printers
{
    QStringList names;
    QString usual; ///< the default printer; empty if there is none
    QString error; ///< user-visible; why the printers cannot be listed
};
[[nodiscard]] Printers findPrinters();

} // namespace printing

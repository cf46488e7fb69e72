#pragma once

#include "repair/item_plan.h"
#include "repair/page_end.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace repair {

class Document;
class Node;
class Package;

/// Most pages of a document that become labels of their own.
inline constexpr int MaximumPages = 2'000;

/// One kind of repair that was made.
struct Repair
{
    /// Stable name, for reports.
    QString code;
    int count = 0;
    bool operator==(const Repair&) const = default;
};

/// A document that the reader imports more completely than the original.
struct RepairedPage
{
    /// An OpenDocument package with only what the reader reads.
    QByteArray package;
    QList<Repair> repairs;
    /// What to set on the items after the import.
    PagePlan plan;
    /// Pages of the original, at least 1. Each becomes a document of its own. Those of a text
    /// document are where its last editor had breaks; pages that are full add to them.
    int pageCount = 1;
};

/// Rewrites the pages of an OpenDocument drawing or text. The file is only read, once, and nothing
/// that it names is opened.
class DocumentRepair
{
public:
    /// Has no pages if the file is not such a document, or damaged, or larger than the limits.
    explicit DocumentRepair(const QString& fileName);
    ~DocumentRepair();

    [[nodiscard]] int pageCount() const { return static_cast<int>(m_pages.size()); }
    /// One page, which is then no longer in memory: each can be taken once.
    ///
    /// @param number of the page, from 1
    /// @return nothing for a page that is not there, was taken, or is too large
    [[nodiscard]] std::optional<RepairedPage> takePage(int number);
    /// The page that was taken last, without what is behind its end: that comes first on the next
    /// page, which must be taken next.
    ///
    /// @return nothing if nothing is behind the end, or if the page is the last one possible
    [[nodiscard]] std::optional<RepairedPage> breakPage(const PageEnd& end);

private:
    [[nodiscard]] Document documentOf(int number);
    void keepForNextPage(std::vector<std::unique_ptr<Node>> rest);
    [[nodiscard]] RepairedPage finished(QList<Repair> repairs);

    std::unique_ptr<Package> m_package;
    std::unique_ptr<Document> m_document; // without its pages; null if it cannot be repaired
    std::vector<std::unique_ptr<Node>> m_pages;
    QList<Repair> m_repairs;          // of the document as a whole
    std::unique_ptr<Document> m_last; // of the page taken last, if it was a text document
    int m_lastNumber = 0;
    std::vector<std::unique_ptr<Node>> m_rest; // rewritten objects for the next page
};

/// One page of a file.
/// @param number of the page, from 1
[[nodiscard]] std::optional<RepairedPage> repairPage(const QString& fileName, int number = 1);

/// A sentence for the user about a repair; the code itself if it is unknown.
[[nodiscard]] QString repairText(const Repair& repair);

} // namespace repair

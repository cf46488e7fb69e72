#pragma once

namespace repair {

class Document;

/// Removes all pages of a drawing but one.
/// @param number from 1
/// @return how many pages the drawing has; 1 for other documents
int keepPage(Document& document, int number);

// Each step returns how often it changed something.

/// Moves the page layout that the page has to where the reader looks for it.
int usePageLayout(Document& document);
/// Brings the background and the objects of the master page onto the page.
int addMasterObjects(Document& document);
/// Takes objects out of groups and links.
int dissolveGroups(Document& document);
/// Writes the order of the objects into each of them.
int writeOrder(Document& document);

} // namespace repair

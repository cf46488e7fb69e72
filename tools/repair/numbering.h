#pragma once

#include "repair/xml_tree.h"

#include <QString>

namespace repair {

class StyleTable;

/// The bullet or number of a paragraph, with the characters around it; may be empty. Only the first
/// paragraph of a list's item and numbered headings have it.
inline const QString LabelAttribute = QLatin1String("labelport:label");

/// Writes the labels of list items and headings to their paragraphs. Numbers count through a whole
/// document, so this comes before its pages are separated.
///
/// @param outline the style that numbers headings; null leaves them without numbers
/// @return how many headings have a number
int writeLabels(const StyleTable& table, const Node* outline, Node& root);

} // namespace repair

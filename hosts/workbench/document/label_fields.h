#pragma once

#include "fields/field_archives.h"
#include "workbench/document/item_json_values.h"
#include "workbench/document/saved_label.h"

/// The fields of every group of a saved label, for fields::FieldWriter and fields::FieldReader.
/// Each function is in the namespace of its struct, where the archives find it.

namespace workbench::datasources {

void describe(auto& field, fields::ValuesOf<SourceValues> auto& source)
{
    field("id", source.id);
    field("kind", source.kind);
    field("properties", source.properties);
    field("selectedFields", source.selectedFields);
}

} // namespace workbench::datasources

namespace workbench {

void describe(auto& field, fields::ValuesOf<PageValues> auto& page)
{
    field("size", page.size);
    field("canvasFlag", page.canvasFlag);
    field("orientation", page.orientation);
    field("background", page.background);
    field("defaultPen", page.defaultPen);
}

void describe(auto& field, fields::ValuesOf<BoxValues> auto& box)
{
    field("size", box.size);
    field("rotation", box.rotation);
    field("flipHorizontal", box.flipHorizontal);
    field("flipVertical", box.flipVertical);
}

void describe(auto& field, fields::ValuesOf<PlacementValues> auto& placement)
{
    field("position", placement.position);
    field("z", placement.z);
    field("movable", placement.movable);
    field("readOnly", placement.readOnly);
    field("userBackground", placement.userBackground);
}

void describe(auto& field, fields::ValuesOf<PenValues> auto& pen)
{
    field("color", pen.color);
    field("width", pen.width);
    field("style", pen.style);
    field("cap", pen.cap);
    field("join", pen.join);
}

void describe(auto& field, fields::ValuesOf<FillValues> auto& fill)
{
    field("color", fill.color);
    field("filled", fill.filled);
    field("style", fill.style);
}

void describe(auto& field, fields::ValuesOf<CornerValues> auto& corner)
{
    field("radius", corner.radius);
}

void describe(auto& field, fields::ValuesOf<FontValues> auto& font)
{
    field("family", font.family);
    field("pointSize", font.pointSize);
    field("sized", font.sized);
    field("bold", font.bold);
    field("italic", font.italic);
    field("underline", font.underline);
}

void describe(auto& field, fields::ValuesOf<TextStyleValues> auto& style)
{
    field("color", style.color);
    field("alignment", style.alignment);
}

void describe(auto& field, fields::ValuesOf<TextValues> auto& text)
{
    field("text", text.text);
    field("html", text.html);
}

void describe(auto& field, fields::ValuesOf<TextLabelValues> auto& label)
{
    field("textBox", label.textBox);
    field("limiting", label.limiting);
    field("optionA", label.optionA);
    field("optionB", label.optionB);
}

void describe(auto& field, fields::ValuesOf<LineValues> auto& line)
{
    field("end", line.end);
    field("startMarker", line.startMarker);
    field("endMarker", line.endMarker);
}

void describe(auto& field, fields::ValuesOf<BarcodeValues> auto& barcode)
{
    field("symbology", barcode.symbology);
    field("content", barcode.content);
    field("flag1", barcode.flag1);
    field("flag2", barcode.flag2);
    field("flag3", barcode.flag3);
    field("textAlignment", barcode.textAlignment);
    field("moduleWidth", barcode.moduleWidth);
    field("option", barcode.option);
    field("number", barcode.number);
    field("value", barcode.value);
    field("foreground", barcode.foreground);
    field("background", barcode.background);
}

void describe(auto& field, fields::ValuesOf<PictureValues> auto& picture)
{
    field("image", picture.image);
}

void describe(auto& field, fields::ValuesOf<SymbolValues> auto& symbol)
{
    field("data", symbol.data);
    field("foreground", symbol.foreground);
    field("background", symbol.background);
}

void describe(auto& field, fields::ValuesOf<DatasourceValues> auto& datasource)
{
    field("id", datasource.id);
    field("fields", datasource.fields);
}

void describe(auto& field, fields::ValuesOf<ItemValues> auto& item)
{
    field("type", item.type);
    field("box", item.box);
    field("placement", item.placement);
    field("pen", item.pen);
    field("fill", item.fill);
    field("corner", item.corner);
    field("font", item.font);
    field("textStyle", item.textStyle);
    field("text", item.text);
    field("textLabel", item.textLabel);
    field("line", item.line);
    field("barcode", item.barcode);
    field("picture", item.picture);
    field("symbol", item.symbol);
    field("datasource", item.datasource);
}

} // namespace workbench

namespace workbench::document {

void describe(auto& field, fields::ValuesOf<SavedLabel> auto& label)
{
    field("page", label.page);
    field("datasources", label.datasources);
    field("items", label.items);
}

} // namespace workbench::document

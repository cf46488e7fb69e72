// The styles as one record of the debug log each, for whoever wonders why a label looks so.

#include "opendocument/graphic_style.h"
#include "opendocument/text_style.h"

#include <Logger.h>

#include <QDebug>

namespace opendocument {

namespace {

// The log names the styles as the reader does, whose parts they are.
constexpr char TextStyleFunction[] = "void OpenOfficeReader::OOTextStyle::debugContent()";
constexpr char GraphicStyleFunction[] =
    "void OpenOfficeReader::OOGraphicStyle::debugContent() const";

constexpr char WrapLegend[] =
    "0 = none; 1 = left; 2 = right; 3 = parallel; 4 = run-through foreground; "
    "5 = run-through background; 6 = dynamic foreground; 7 = dynamic background\n";

CuteMessageLogger record(int line, const char* function)
{
    return {loggerInstance(), Logger::Debug, "open_office_reader.cpp", line, function};
}

QDebug operator<<(QDebug debug, const Margins& margins)
{
    return debug << margins.first << margins.second << margins.third << margins.fourth;
}

} // namespace

void OOTextStyle::debugContent()
{
    record(__LINE__, TextStyleFunction).write()
        << "font" << fontFamily << fontSize << bold << italic << underline //
        << "paragraph" << alignment << auxValue                            //
        << "\nmargins" << margins                                          //
        << "textColor:" << textColor;
}

void OOGraphicStyle::debugContent() const
{
    record(__LINE__, GraphicStyleFunction).write()
        << "alignment" << horizontalPos << verticalPos               //
        << "\nanchorParagraph" << anchorParagraph                    //
        << "margins" << margins                                      //
        << "props" << mirrorHorizontal << mirrorVertical << rotation //
        << "\nwrap" << wrap << WrapLegend                            //
        << "pen" << static_cast<Qt::PenStyle>(penStyle) << penWidth << penColor;
}

} // namespace opendocument

"""Draws the OpenDocument samples through LibreOffice's own interface.

Usage: make_opendocument_samples.py PIPE FOLDER, with an office listening on PIPE.
Every label is a function; lengths are millimetres.
"""

import os
import sys
import tempfile
import time

import uno
from com.sun.star.awt import Point, Size
from com.sun.star.awt.FontSlant import ITALIC
from com.sun.star.awt.FontWeight import BOLD
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException
from com.sun.star.drawing.FillStyle import GRADIENT, HATCH, NONE as NO_FILL, SOLID
from com.sun.star.drawing.LineStyle import DASH, NONE as NO_LINE, SOLID as SOLID_LINE
from com.sun.star.style.ParagraphAdjust import CENTER, RIGHT
from com.sun.star.text.TextContentAnchorType import AS_CHARACTER, AT_PARAGRAPH

BLACK, WHITE, RED, YELLOW, GREY, BLUE, GREEN = (
    0x000000, 0xFFFFFF, 0xC01818, 0xFFD500, 0x808080, 0x1B4F8F, 0x1F7A3D)

PARCEL_SVG = """<svg xmlns="http://www.w3.org/2000/svg" width="40mm" height="40mm" viewBox="0 0 40 40">
<path d="M4 12 L20 4 L36 12 L36 30 L20 38 L4 30 Z" fill="#c9965a" stroke="#5a3a12" stroke-width="1.2"/>
<path d="M4 12 L20 20 L36 12 M20 20 L20 38" fill="none" stroke="#5a3a12" stroke-width="1.2"/>
<path d="M12 8 L28 16 L28 22" fill="none" stroke="#8c6230" stroke-width="2"/>
</svg>
"""

BOLT_SVG = """<svg xmlns="http://www.w3.org/2000/svg" width="30mm" height="40mm" viewBox="0 0 30 40">
<path d="M18 1 L4 23 L14 23 L10 39 L27 15 L16 15 Z" fill="#000000"/>
</svg>
"""


def mm(value):
    return int(round(value * 100))


class Office:
    def __init__(self, pipe):
        local = uno.getComponentContext()
        resolver = local.ServiceManager.createInstanceWithContext(
            "com.sun.star.bridge.UnoUrlResolver", local)
        for _ in range(120):
            try:
                self.context = resolver.resolve(
                    f"uno:pipe,name={pipe};urp;StarOffice.ComponentContext")
                break
            except NoConnectException:
                time.sleep(0.5)
        else:
            sys.exit("The office does not answer.")
        self.desktop = self.context.ServiceManager.createInstanceWithContext(
            "com.sun.star.frame.Desktop", self.context)
        self.pictures = self.context.ServiceManager.createInstanceWithContext(
            "com.sun.star.graphic.GraphicProvider", self.context)

    def new(self, kind):
        hidden = PropertyValue(Name="Hidden", Value=True)
        return self.desktop.loadComponentFromURL(f"private:factory/{kind}", "_blank", 0, (hidden,))

    def picture(self, text, suffix):
        with tempfile.NamedTemporaryFile("w", suffix=suffix, delete=False) as file:
            file.write(text)
        try:
            url = PropertyValue(Name="URL", Value=uno.systemPathToFileUrl(file.name))
            return self.pictures.queryGraphic((url,))
        finally:
            os.unlink(file.name)


def save(document, path, filter_name):
    document.storeToURL(uno.systemPathToFileUrl(path),
                        (PropertyValue(Name="FilterName", Value=filter_name),))
    document.close(True)


class Drawing:
    """One page of label, with helpers that add a shape and return it."""

    def __init__(self, office, width, height):
        self.office = office
        self.document = office.new("sdraw")
        self.page = self.document.DrawPages.getByIndex(0)
        for side in ("BorderLeft", "BorderRight", "BorderTop", "BorderBottom"):
            setattr(self.page, side, 0)
        self.page.Width, self.page.Height = mm(width), mm(height)

    def add(self, kind, x, y, width, height):
        shape = self.document.createInstance(f"com.sun.star.drawing.{kind}")
        self.page.add(shape)
        shape.Position = Point(mm(x), mm(y))
        shape.Size = Size(mm(width), mm(height))
        return shape

    @staticmethod
    def pen(shape, color=BLACK, width=0.3):
        shape.LineStyle, shape.LineColor, shape.LineWidth = SOLID_LINE, color, mm(width)
        return shape

    @staticmethod
    def no_pen(shape):
        shape.LineStyle = NO_LINE
        return shape

    @staticmethod
    def fill(shape, color=None):
        if color is None:
            shape.FillStyle = NO_FILL
        else:
            shape.FillStyle, shape.FillColor = SOLID, color
        return shape

    def box(self, x, y, width, height, line=BLACK, line_width=0.3, color=None, radius=0):
        shape = self.pen(self.fill(self.add("RectangleShape", x, y, width, height), color),
                         line, line_width)
        shape.CornerRadius = mm(radius)
        return shape

    def ellipse(self, x, y, width, height, line=BLACK, line_width=0.3, color=None):
        return self.pen(self.fill(self.add("EllipseShape", x, y, width, height), color),
                        line, line_width)

    def line(self, x1, y1, x2, y2, color=BLACK, width=0.3):
        return self.pen(self.add("LineShape", x1, y1, x2 - x1, y2 - y1), color, width)

    def text(self, x, y, width, height, text, size, color=BLACK, bold=False, italic=False,
             adjust=None, font="Liberation Sans"):
        shape = self.add("TextShape", x, y, width, height)
        shape.TextAutoGrowHeight = False
        for side in ("TextLeftDistance", "TextRightDistance",
                     "TextUpperDistance", "TextLowerDistance"):
            setattr(shape, side, 0)
        shape.Size = Size(mm(width), mm(height))
        shape.String = text
        shape.CharHeight, shape.CharColor, shape.CharFontName = size, color, font
        if bold:
            shape.CharWeight = BOLD
        if italic:
            shape.CharPosture = ITALIC
        if adjust is not None:
            shape.ParaAdjust = adjust
        return shape

    def custom(self, kind, x, y, width, height, color=None, line=BLACK, line_width=0.3):
        shape = self.add("CustomShape", x, y, width, height)
        geometry = PropertyValue(Name="Type", Value=kind)
        shape.CustomShapeGeometry = (geometry,)
        return self.pen(self.fill(shape, color), line, line_width)

    def symbol(self, svg, x, y, width, height):
        shape = self.add("GraphicObjectShape", x, y, width, height)
        shape.Graphic = self.office.picture(svg, ".svg")
        shape.Size = Size(mm(width), mm(height))
        return shape

    def save(self, folder, name):
        save(self.document, os.path.join(folder, name), "draw8")


def address_label(office, folder):
    label = Drawing(office, 89, 36)
    label.box(1.5, 1.5, 86, 33, line=GREY, line_width=0.2, radius=2)
    label.symbol(PARCEL_SVG, 5, 8, 18, 18)
    label.text(28, 5, 56, 5, "From: Harbour Books, 4 Quay Lane, Port Ellery", 7, color=GREY)
    label.line(28, 10.5, 84, 10.5, color=GREY, width=0.2)
    label.text(28, 12.5, 56, 20, "Ms. Ada Winter\n17 Orchard Close\nNether Wallop  NW4 2TB", 13,
               bold=True)
    label.save(folder, "address_label.odg")


def high_voltage(office, folder):
    label = Drawing(office, 100, 60)
    label.box(2, 2, 96, 56, line=BLACK, line_width=1.0, color=YELLOW, radius=3)
    triangle = label.custom("isosceles-triangle", 7, 9, 34, 30, color=YELLOW, line_width=2.0)
    triangle.LineColor = BLACK
    label.symbol(BOLT_SVG, 18.5, 17, 11, 18)
    label.text(44, 9, 50, 12, "DANGER", 30, bold=True, adjust=CENTER)
    label.text(44, 23, 50, 16, "400 V\nDo not open", 18, bold=True, adjust=CENTER)
    label.box(7, 43, 86, 11, line=BLACK, line_width=0.3, color=BLACK)
    label.text(7, 45.2, 86, 7, "Switch off & lock before work", 14, color=WHITE, bold=True,
               adjust=CENTER)
    label.save(folder, "high_voltage.odg")


def shelf_label(office, folder):
    label = Drawing(office, 105, 38)
    card = label.box(0.5, 0.5, 104, 37, line=RED, line_width=0.4)
    card.FillStyle = GRADIENT
    gradient = card.FillGradient
    gradient.StartColor, gradient.EndColor = 0xFFF3B0, WHITE
    card.FillGradient = gradient
    label.text(5, 4, 60, 8, "Mountain coffee", 18, bold=True)
    label.text(5, 13, 60, 12, "whole beans, medium roast\n500 g (1 kg = 13.98)", 10)
    label.no_pen(label.ellipse(70, 3, 32, 32, color=RED))
    label.text(70, 12, 32, 13, "6.99", 32, color=WHITE, bold=True, adjust=CENTER)
    label.line(5, 28, 65, 28, color=GREY, width=0.2)
    label.text(5, 30, 60, 5, "Art. 20-4471  |  shelf 3 < B > row 2", 8, color=GREY)
    label.save(folder, "shelf_label.odg")


def cable_markers(office, folder):
    label = Drawing(office, 120, 50)
    colors = (RED, BLUE, GREEN, BLACK)
    for row in range(3):
        for column in range(4):
            x, y = 4 + column * 29, 4 + row * 15
            marker = label.box(x, y, 25, 12, line=colors[column], line_width=0.5, radius=3)
            marker.String = f"W{column + 1}-{row + 1:02d}"
            marker.CharHeight, marker.CharWeight = 14, BOLD
            marker.CharFontName, marker.ParaAdjust = "Liberation Mono", CENTER
    turned = label.text(117.5, 6, 40, 5, "cabinet 7", 10, color=GREY, adjust=CENTER)
    turned.RotateAngle = 9000
    turned.Position = Point(mm(115), mm(4))
    label.save(folder, "cable_markers.odg")


def rating_plate(office, folder):
    label = Drawing(office, 110, 70)
    label.box(2, 2, 106, 66, line=BLACK, line_width=0.6, color=0xE6E6E6, radius=4)
    label.text(6, 6, 98, 9, "Pump KX 40", 22, bold=True)
    rows = (("Voltage", "230 V, 50 Hz"), ("Power", "1.5 kW"), ("Flow", "40 l/min"),
            ("Year", "2019"))
    for index, (name, value) in enumerate(rows):
        y = 20 + index * 8
        label.line(6, y + 6.5, 64, y + 6.5, color=GREY, width=0.2)
        label.text(6, y, 24, 6, name, 11)
        label.text(32, y, 32, 6, value, 11, bold=True, adjust=RIGHT)
    outline = label.box(72, 24, 26, 20, line=BLACK, line_width=0.4)
    outline.FillStyle = HATCH
    arrow = label.line(72, 50, 98, 50, width=0.3)
    arrow.LineStartName = arrow.LineEndName = "Arrow"
    label.text(72, 51.5, 26, 5, "260 mm", 10, adjust=CENTER)
    arrow = label.line(102, 24, 102, 44, width=0.3)
    arrow.LineEndName = "Arrow"
    dashed = label.line(66, 18, 66, 62, color=GREY)
    dashed.LineStyle = DASH
    label.custom("diamond", 72, 58, 8, 8, color=WHITE)
    label.custom("hexagon", 82, 58, 8, 8, color=WHITE)
    label.custom("octagon", 92, 58, 8, 8, color=WHITE)
    label.save(folder, "rating_plate.odg")


def sample_vial(office, folder):
    label = Drawing(office, 60, 22)
    label.box(0.5, 0.5, 59, 21, line=BLUE, line_width=0.4)
    label.no_pen(label.box(0.5, 0.5, 59, 5.5, color=BLUE))
    label.text(2, 1.2, 56, 4.5, "LABORATORY SAMPLE", 9, color=WHITE, bold=True)
    body = label.text(2, 7.5, 40, 13, "Batch: 77-A\nTaken: 2021-06-14\nKeep at 4 °C", 9)
    cursor = body.createTextCursor()
    cursor.gotoStart(False)
    cursor.goRight(6, True)
    cursor.CharWeight = BOLD
    turned = label.box(45, 9.5, 10, 10, line=RED, line_width=0.6)
    turned.RotateAngle = 4500
    label.text(44, 12, 12, 6, "4°", 12, color=RED, bold=True, adjust=CENTER)
    label.save(folder, "sample_vial.odg")


class Letter:
    """One text document."""

    def __init__(self, office, width, height, margin):
        self.office = office
        self.document = office.new("swriter")
        style = self.document.StyleFamilies.getByName("PageStyles").getByName("Standard")
        style.Width, style.Height = mm(width), mm(height)
        for side in ("LeftMargin", "RightMargin", "TopMargin", "BottomMargin"):
            setattr(style, side, mm(margin))
        self.cursor = self.document.Text.createTextCursor()
        self.first = True

    def paragraph(self, runs, style="Standard", adjust=None, size=None):
        text = self.document.Text
        if not self.first:
            text.insertControlCharacter(self.cursor, 0, False)
        self.first = False
        self.cursor.ParaStyleName = style
        if adjust is not None:
            self.cursor.ParaAdjust = adjust
        for run, properties in runs:
            self.cursor.setPropertiesToDefault(("CharWeight", "CharPosture", "CharUnderline"))
            if size is not None:
                self.cursor.CharHeight = size
            for name, value in properties.items():
                setattr(self.cursor, name, value)
            text.insertString(self.cursor, run, False)

    def symbol(self, svg, width, height, anchor):
        graphic = self.document.createInstance("com.sun.star.text.TextGraphicObject")
        graphic.Graphic = self.office.picture(svg, ".svg")
        graphic.AnchorType = anchor
        graphic.Width, graphic.Height = mm(width), mm(height)
        self.document.Text.insertTextContent(self.cursor, graphic, False)

    def save(self, folder, name):
        save(self.document, os.path.join(folder, name), "writer8")


def care_label(office, folder):
    label = Letter(office, 80, 100, 6)
    plain, bold = {}, {"CharWeight": BOLD}
    label.paragraph((("Wool blanket", bold),), adjust=CENTER, size=18)
    label.paragraph((("140 x 200 cm", plain),), adjust=CENTER, size=12)
    label.paragraph((("", plain),))
    label.paragraph((("Wash at 30 degrees, wool programme.", plain),), size=11)
    label.paragraph((("Do not ", plain), ("tumble dry", bold), (".", plain)), size=11)
    label.paragraph((("Iron at low heat <110 °C>.", {"CharPosture": ITALIC}),), size=11)
    label.paragraph((("100 % new wool", {"CharUnderline": 1}),), adjust=RIGHT, size=11)
    label.save(folder, "care_label.odt")


def goods_in(office, folder):
    label = Letter(office, 105, 74, 5)
    plain, bold = {}, {"CharWeight": BOLD}
    label.symbol(PARCEL_SVG, 16, 16, AS_CHARACTER)
    label.paragraph((("", plain),))
    label.paragraph((("GOODS IN", bold),), size=24)
    label.paragraph((("Supplier\t", plain), ("Northfield Paper", bold)), size=12)
    label.paragraph((("Order\t", plain), ("2018-3391", bold)), size=12)
    label.paragraph((("Boxes    ", plain), ("12 of 40", bold)), size=12)
    label.paragraph((("Checked by: ________________", plain),), size=10)
    label.save(folder, "goods_in.odt")


def main():
    office, folder = Office(sys.argv[1]), sys.argv[2]
    for sample in (address_label, high_voltage, shelf_label, cable_markers, rating_plate,
                   sample_vial, care_label, goods_in):
        sample(office, folder)
        print("made", sample.__name__)
    try:
        office.desktop.terminate()
    except Exception:  # the office closes the connection while it answers
        pass


if __name__ == "__main__":
    main()

"""Labels that name files which are not theirs: one of every format, in every way that the format
has of naming anything. `Names` says what they name."""

import base64
import gzip
import json
import struct
import zipfile
import zlib


class Names:
    """The canaries of a folder: files that exist and must not be opened."""

    def __init__(self, folder):
        self.folder = folder
        for name in ("picture.png", "drawing.svg", "sheet.css", "entity.txt", "grammar.dtd",
                     "list.csv", "symbols.db", "font.ttf"):
            (folder / f"canary-{name}").write_bytes(b"canary-content")

    def path(self, name):
        return f"{self.folder}/canary-{name}"

    def url(self, name):
        return f"file://{self.path(name)}"

    def all_ways(self, name):
        """A file by its path, its address, a path from here, and one from the network."""
        return [self.path(name), self.url(name), f"canary-{name}",
                f"{self.folder.name}/canary-{name}", f"../{self.folder.name}/canary-{name}",
                f"http://127.0.0.1:9/canary-{name}", f"//127.0.0.1/canary-{name}",
                f"qrc:///../../..{self.path(name)}"]


def png():
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(
            ">I", zlib.crc32(kind + data))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", 1, 1, 8, 0, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(b"\0\0")) + chunk(b"IEND", b""))


def svg(names, prolog=True):
    """A drawing that refers to everything that a drawing can refer to."""
    parts = []
    for at, name in enumerate(names.all_ways("picture.png")):
        parts.append(f'<image x="{at}" width="5" height="5" xlink:href="{name}"/>')
        parts.append(f'<image x="{at}" width="5" height="5" href="{name}"/>')
    for name in names.all_ways("drawing.svg"):
        parts.append(f'<use xlink:href="{name}#a"/><use href="{name}"/>')
        parts.append(f'<rect width="3" height="3" fill="url({name}#a)" filter="url({name}#f)" '
                     f'style="mask:url({name}#m);marker-start:url(\'{name}#m\')"/>')
        parts.append(f'<a xlink:href="{name}"><text font-family="{names.path("font.ttf")}">a</text>'
                     f'</a><script xlink:href="{name}"/><feImage xlink:href="{name}"/>')
    for name in names.all_ways("sheet.css"):
        parts.append(f'<style>@import url({name}); @import "{name}"; '
                     f'rect {{ fill: url({name}) }} @font-face {{ font-family: a; '
                     f'src: url({names.url("font.ttf")}) }}</style>')
    start = ""
    if prolog:
        start = (f'<?xml version="1.0"?><?xml-stylesheet href="{names.url("sheet.css")}"?>'
                 f'<!DOCTYPE svg SYSTEM "{names.url("grammar.dtd")}">')
    return (start + '<svg xmlns="http://www.w3.org/2000/svg" '
            'xmlns:xlink="http://www.w3.org/1999/xlink" width="20" height="20">'
            '<rect width="20" height="20"/>' + "".join(parts) + "</svg>").encode()


def html(names):
    parts = []
    for name in names.all_ways("picture.png"):
        parts.append(f'<img src="{name}"/><table background="{name}"><tr><td>a</td></tr></table>'
                     f'<p style="background-image:url({name})">a</p>')
    for name in names.all_ways("sheet.css"):
        parts.append(f'<link rel="stylesheet" href="{name}"/><style>@import url({name});</style>')
    return f"<html><head>{parts[-1]}</head><body>{''.join(parts)}</body></html>"


def doctypes(names, root):
    grammar, entity = names.url("grammar.dtd"), names.url("entity.txt")
    return [f'<!DOCTYPE {root} SYSTEM "{grammar}">',
            f'<!DOCTYPE {root} PUBLIC "a" "{grammar}">',
            f'<!DOCTYPE {root} [<!ENTITY x SYSTEM "{entity}">]>',
            f'<!DOCTYPE {root} [<!ENTITY x SYSTEM "{names.path("entity.txt")}">]>',
            f'<!DOCTYPE {root} [<!ENTITY % p SYSTEM "{entity}"> %p;]>',
            f'<!DOCTYPE {root} [<!ENTITY x SYSTEM "http://127.0.0.1:9/canary">]>', ""]


def escaped(text):
    return text.replace("&", "&amp;").replace("<", "&lt;").replace('"', "&quot;")


def xml_labels(names):
    """Texts of XML labels."""
    for doctype in doctypes(names, "qmtx"):
        reference = "&x;" if "ENTITY x" in doctype else ""
        pictures = [svg(names, prolog=False), svg(names), b" " + svg(names, prolog=False),
                    b"\xef\xbb\xbf" + svg(names, prolog=False), png(),
                    names.path("picture.png").encode(), names.url("picture.png").encode(),
                    gzip.compress(svg(names))]
        boxes = "".join("<picture_box><image><content>" + base64.b64encode(picture).decode() +
                        "</content></image></picture_box>" for picture in pictures)
        texts = "".join(f"<transparent_label><scaleable>{flag}</scaleable><printable_control><text>"
                        f"{reference}{escaped(html(names))}</text><font><family>"
                        f"{names.path('font.ttf')}</family></font></printable_control>"
                        f"</transparent_label>" for flag in ("true", "false"))
        lists = ("<combo_box><ArrayOfAnyType><a>" + names.path("list.csv") +
                 "</a></ArrayOfAnyType></combo_box>")
        background = base64.b64encode(svg(names, prolog=False)).decode()
        yield (doctype + "<qmtx><pre_printed_image><content>" + background +
               "</content></pre_printed_image><controls>" + texts + boxes + lists +
               f"<picture_box><image><content>{names.path('picture.png')}</content></image>"
               "</picture_box></controls></qmtx>").encode()


def content_xml(names, doctype, body):
    style = ('<style:style style:name="S" style:family="text"><style:text-properties '
             f'style:font-name="a\'; background-image:url({names.url("picture.png")})" '
             'fo:font-size="12pt"/></style:style>')
    inner = "".join(
        f'<draw:frame svg:width="1in" svg:height="1in"><draw:image xlink:href="{name}"/>'
        f'</draw:frame><draw:frame><draw:object xlink:href="{name}"/></draw:frame>'
        for kind in ("picture.png", "drawing.svg") for name in names.all_ways(kind))
    inner += "".join(
        f'<draw:frame svg:width="1in" svg:height="1in"><draw:image xlink:href="{name}"/>'
        '</draw:frame>' for name in ("Pictures/a.svg", "Pictures/a.png", "Pictures/b.svg"))
    text = escaped(html(names))
    inner += ('<draw:rect svg:width="1in" svg:height="1in"><text:p text:style-name="S">' + text +
              '<text:span text:style-name="S">' + text + "</text:span></text:p></draw:rect>")
    inner += (f'<draw:frame><draw:text-box><text:p>{text}</text:p></draw:text-box></draw:frame>')
    paragraph = f"<text:p text:style-name='S'>{text}{'&x;' if 'ENTITY x' in doctype else ''}</text:p>"
    page = f"<draw:page>{inner}</draw:page>" if body == "office:drawing" else inner + paragraph
    return (f"{doctype}<office:document-content><office:automatic-styles>{style}"
            f"</office:automatic-styles><office:body><{body}>{page}</{body}></office:body>"
            "</office:document-content>")


def packages(names, write):
    """Calls write(suffix) for a file name and fills it with a package."""
    for doctype in doctypes(names, "a"):
        for body, suffix in (("office:drawing", "odg"), ("office:text", "odt")):
            with zipfile.ZipFile(write(suffix), "w") as package:
                package.writestr("styles.xml", doctype + "<office:document-styles/>")
                package.writestr("content.xml", content_xml(names, doctype, body))
                package.writestr("Pictures/a.svg", svg(names))
                package.writestr("Pictures/b.svg", svg(names, prolog=False))
                package.writestr("Pictures/a.png", svg(names))
                package.writestr(f"../{names.folder.name}/canary-picture.png", png())


def qt_text(value):
    raw = value.encode("utf-16-be")
    return struct.pack(">I", len(raw)) + raw


def item_header():
    return struct.pack(">?dddd", False, 0.5, 0.5, 1.0, 0.0) + qt_text("1") + qt_text("1")


def symbol_record(name, data):
    return (struct.pack(">i", 0x10001) + item_header() + qt_text(name) +
            struct.pack(">I", len(data)) + data)


def text_record(content, key):
    return (struct.pack(">i", 0x10000) + item_header() + qt_text(content) + qt_text(content) +
            qt_text(key) + struct.pack(">dd", -1.0, -1.0) + struct.pack(">ii", 0, 0) + qt_text("") +
            struct.pack(">i???i?????iii", 42, False, False, False, 1, False, False, False, False,
                        False, 42, 0, 0))


def picture_record(bytes_):
    return struct.pack(">i", 0x10004) + item_header() + struct.pack(">i", 1) + bytes_


def canvas_file(names):
    """A binary canvas file of the newest layout."""
    start = struct.pack(">iii", 0, 2000024, 0)
    start += struct.pack(">?ddii", False, 2.0, 3.0, 0, 0) + qt_text(names.path("list.csv")) * 2
    start += struct.pack(">?ii?dddddd", False, 0, 0, False, 0, 0, 0, 0, 300.0, 300.0)
    start += struct.pack(">iiii", 1, 100, 1, 0) + qt_text(names.path("list.csv")) + qt_text("")
    start += struct.pack(">i", 1)
    databases = names.all_ways("list.csv") + names.all_ways("symbols.db")
    start += struct.pack(">iiii", 0, 0, 0, len(databases))
    start += b"".join(qt_text(name) + struct.pack(">i", 0) for name in databases)
    items = b"".join(symbol_record(name, b"") for kind in ("drawing.svg", "symbols.db")
                     for name in names.all_ways(kind))
    items += symbol_record("a.svg", svg(names)) + symbol_record("a.svg", svg(names, prolog=False))
    items += b"".join(text_record(content, key) for content in (html(names), "%Record%")
                      for key in ("_SPECIAL", "Record", names.path("list.csv")))
    return start + items + picture_record(png()) + picture_record(svg(names))


def saved_label(names, item):
    """A saved label whose items all hold what they must not follow. `item` is a label that the
    program itself has saved."""
    label = json.loads(item)
    label.pop("checksum", None)

    def spoil(value, key=""):
        if isinstance(value, dict):
            return {name: spoil(inner, name) for name, inner in value.items()}
        if isinstance(value, list):
            return [spoil(inner, key) for inner in value]
        if key == "html":
            return html(names)
        if key == "data":
            return base64.b64encode(svg(names, prolog=False)).decode()
        if key == "png":
            return base64.b64encode(svg(names)).decode()
        if key == "family":
            return names.path("font.ttf")
        return value

    label["label"] = spoil(label["label"])
    return json.dumps(label).encode()

# SPDX-License-Identifier: MIT
"""The report that is built by hand: where each object goes, what is typed into its sheet, and what the file then
holds. Places are twips from the left of the page and from the top of the body."""

# The buttons of the second tool bar, from the left.
TOOLS = ("LABEL", "LABELVAR", "TEXTBOX", "PICTURE", "BOX", "LINE", "ANYLINE", "BARCODE", "QR", "CHART", "COMMAND")

# The entries of the menu, from the top.
MENU = ("label", "next variable", "text box", "picture", "box", "horizontal line", "line", "circle", "barcode", "qr",
        "chart", "page break", "execute", "post show")

# The rows of each sheet, from the top.
ROWS = {
    "DOCUMENT": ("Report_title", "Orientation", "Sample Kex/Ked file"),
    "LABEL": ("Expression", "X/Column", "Y position", "Alignment", "Hyperlink", "Align to grid", "Print at runtime",
              "Font", "Font underline", "Font strike", "Charset", "Font color", "Format", "Text conversion"),
    "TEXTBOX": ("Initial expression", "@Variable", "X/Column", "Y position", "Width", "Alignment", "Align to grid",
                "Print at runtime", "Font", "Font underline", "Font Strike", "Charset", "Font color", "Border style"),
    "PICTURE": ("File", "X/Column", "Y position", "Width", "Height"),
    "BOX": ("X/Column", "Y position", "Width", "Height", "Line width", "Color", "Filled box"),
    "LINE": ("X/Column", "X2 /Column", "Y position", "Line width", "Forecolor", "Dashed line"),
    "ANYLINE": ("X/Column", "Y position", "X plus:", "Y plus:", "Line width", "Dashed line", "Forecolor"),
    "CIRCLE": ("X/Column", "Y position", "Diameter", "Line width", "Color"),
    "BARCODE": ("Barcode type", "X/Column", "Y position", "Expression", "Sample value", "Height", "Barwidth"),
    "QR": ("Text", "X/Column", "Y position", "Height/width"),
}

# Rows whose value is picked from a list by its first letter.
LISTS = ("Alignment", "Font underline", "Filled box", "Dashed line", "Barcode type", "Text conversion")

# `is` is what comes back from the file. The viewer alone reads `written`, which the designer does not read back.
REPORT = (
    {"tool": "LABEL", "in": "HEADER", "kind": "LABEL", "at": (300, 200), "typed": "Invoice",
     "is": {"Content": "Invoice", "FontName": "Arial", "FontSize": 8}},
    {"tool": "LABELVAR", "in": "HEADER", "kind": "LABEL", "at": (3000, 200), "is": {"Content": "@number"}},
    {"tool": "LABELVAR", "in": "HEADER", "kind": "LABEL", "at": (3000, 600), "is": {"Content": "@customer"}},
    {"menu": "next variable", "in": "HEADER", "kind": "LABEL", "at": (3000, 1000), "is": {"Content": "@total"}},
    {"tool": "TEXTBOX", "in": "HEADER", "kind": "TEXTBOX", "at": (5000, 200),
     "edits": {"Initial expression": "Name", "Width": "2000"},
     "is": {"Content": "Name", "Width": 2000, "Height": 285}},
    {"tool": "PICTURE", "in": "HEADER", "kind": "PICTURE", "at": (8000, 200), "file": "examples/logo.png",
     "is": {"PicturePath": "FILE", "PictureFixedWidth": 0}},
    {"tool": "PICTURE", "in": "HEADER", "kind": "PICTURE", "at": (10500, 200), "file": None,
     "edits": {"File": "@photo", "Width": "900", "Height": "700"},
     "is": {"PicturePath": "@photo", "Width": 900, "Height": 700}},
    {"tool": "LINE", "in": "HEADER", "kind": "LINE", "at": (200, 1500),
     "edits": {"X2 /Column": "11000", "Line width": "2"}, "is": {"X2Value": "11000", "LineWidth": 2}},
    {"menu": "box", "in": "HEADER", "kind": "BOX", "at": (300, 800),
     "is": {"Width": 1000, "Height": 400, "LineWidth": 1}},

    {"menu": "label", "in": "DATA", "kind": "LABEL", "at": (300, 300),
     "edits": {"Expression": "Total due", "X/Column": "1200", "Alignment": "Right", "Font underline": "Yes",
               "Font color": "0,0,255"},
     "is": {"Content": "Total due", "XValue": "1200", "Align": "R", "Underline": -1, "ColorB": 255}},
    {"tool": "BOX", "in": "DATA", "kind": "BOX", "at": (300, 800),
     "edits": {"Width": "2000", "Height": "900", "Line width": "3", "Color": "255,0,0"},
     "is": {"Width": 2000, "Height": 900, "LineWidth": 3, "ColorR": 255, "ColorG": 0, "Filled": 0}},
    {"menu": "box", "in": "DATA", "kind": "BOX", "at": (2600, 800),
     "edits": {"Color": "0,128,0", "Filled box": "Yes"}, "is": {"Filled": -1, "ColorG": 128, "Width": 1000}},
    {"tool": "ANYLINE", "in": "DATA", "kind": "ANYLINE", "at": (4000, 500),
     "edits": {"X plus:": "1500", "Y plus:": "600", "Line width": "2"},
     "is": {"Width": 1500, "Height": 600, "LineWidth": 2}},
    {"menu": "line", "in": "DATA", "kind": "ANYLINE", "at": (6000, 200),
     "edits": {"Dashed line": "Yes"}, "is": {"Width": 1000, "Height": 1000, "LineFlag": -1}},
    {"menu": "circle", "in": "DATA", "kind": "CIRCLE", "at": (8200, 300),
     "edits": {"Diameter": "900", "Line width": "2"}, "is": {"Width": 900, "Height": 900, "LineWidth": 2}},
    {"menu": "horizontal line", "in": "DATA", "kind": "LINE", "at": (300, 2000),
     "edits": {"X2 /Column": "4500", "Dashed line": "Yes"}, "is": {"X2Value": "4500", "LineFlag": -1}},
    {"tool": "BARCODE", "in": "DATA", "kind": "BARCODE", "at": (300, 2300),
     "edits": {"Expression": "12345", "Height": "600"},
     "is": {"Content": "12345", "Height": 600, "BarcodeKind": "1", "BarWidth": 10}},
    {"menu": "barcode", "in": "DATA", "kind": "BARCODE", "at": (300, 3300),
     "edits": {"Barcode type": "EAN-8", "Expression": "@code"}, "is": {"Content": "@code", "BarcodeKind": "8"}},
    {"tool": "QR", "in": "DATA", "kind": "QR", "at": (9300, 1400),
     "edits": {"Text": "hello", "Height/width": "1500"},
     "is": {"Content": "hello", "Width": 1500, "Height": 1500}},
    {"menu": "qr", "in": "DATA", "kind": "QR", "at": (9800, 200),
     "edits": {"Text": "abc", "Height/width": "900"}, "is": {"Content": "abc", "Width": 900}},
    {"tool": "CHART", "in": "DATA", "kind": "CHART", "at": (5200, 1300),
     "is": {"Width": 3500, "Height": 2500, "Graph_serie_1_type": "BARROUND", "Graph_serie_8_name": "Serie 8"}},

    {"tool": "COMMAND", "in": "FOOTER", "kind": "COMMAND", "at": (300, 200), "zoom": 75,
     "is": {"Content": "@@pagebreak"}},
    {"menu": "execute", "in": "FOOTER", "kind": "COMMAND", "at": (2500, 200), "written": "{2500;Execute="},
    {"menu": "post show", "in": "FOOTER", "kind": "COMMAND", "at": (5000, 200), "written": "{5000;PostShow="},
    {"menu": "page break", "in": "FOOTER", "kind": "COMMAND", "at": (7500, 200), "is": {"Content": "@@pagebreak"}},
    {"menu": "text box", "in": "FOOTER", "kind": "TEXTBOX", "at": (300, 600),
     "edits": {"Initial expression": "City", "Border style": "1 - Single border"},
     "is": {"Content": "City", "TextBoxFrameValue": "1", "Width": 1000}},
    {"tool": "LABEL", "in": "FOOTER", "kind": "LABEL", "at": (2500, 600), "typed": "Page (1)",
     "is": {"Content": "Page (1)"}},
    {"tool": "LABEL", "in": "FOOTER", "kind": "LABEL", "at": (4500, 600),
     "edits": {"Expression": "Thanks", "Format": "Currency", "Text conversion": "UPPER"},
     "is": {"Content": "Thanks", "Format": "Currency", "CaseMode": "U"}},
    {"tool": "BOX", "in": "FOOTER", "kind": "BOX", "at": (7000, 500),
     "edits": {"X/Column": "6600", "Y position": "600"}, "is": {"XValue": "6600"}},
    {"tool": "LINE", "in": "FOOTER", "kind": "LINE", "at": (300, 1100),
     "edits": {"X2 /Column": "3000"}, "is": {"X2Value": "3000"}},
)

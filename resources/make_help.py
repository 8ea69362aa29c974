#!/usr/bin/env python3
"""Writes the pages of the help book, Help/ in English and de/Help/ in German.

The pages are kept under version control, and the build doesn't run this script. Run it after a
change of the tables below. A page is named after its window and the help part of the queue
("Graphics_MVO110.htm"). It tells of the controls that this window has on this printer, in their
order, each under an anchor ("Graphics_MVO110.htm#screen").
"""

from dataclasses import dataclass
from pathlib import Path

WINDOWS = ["Graphics", "ColorBalance", "ImageAdj"]


@dataclass
class Product:
    name: str
    panel: list  # the panel's settings
    settings: list  # settings of the image settings window
    title: str = "Graphics"  # topic that names the panel

    def topics(self, window):
        return {"Graphics": self.panel + ["image-settings", "color-balance", "restore", "help"],
                "ColorBalance": BALANCE + WINDOW_END,
                "ImageAdj": self.settings + WINDOW_END}[window]


GENERAL = ["color-mode", "output-mode", "brightness", "screen"]
MODES = ["basic-settings", "advanced-settings", "image-type"]
RGB = ["rgb-correction", "rgb-profile", "rgb-gamma", "rgb-temperature"]
BALANCE = ["adjust", "target-color", "low-density", "middle-density", "high-density", "preview"]
WINDOW_END = ["ok", "cancel", "restore", "help"]

PRODUCTS = {
    "MVO110": Product("Velmora MVO-110", GENERAL + ["image-type"], ["rgb-gamma"]),
    "MVO220": Product("Velmora MVO-220", GENERAL + MODES + ["rgb-correction"], RGB),
    "MVO420": Product("Velmora MVO-420", GENERAL + MODES + ["rgb-correction"],
                      RGB + ["cmyk-correction"]),
    "MVO530": Product("Velmora MVO-530", GENERAL + MODES + ["rgb-correction", "cmyk-correction"],
                      RGB + ["cmyk-correction", "target-paper", "overprint"]),
    "SV500": Product("Sorvani SV500", GENERAL + ["image-type"],
                     RGB + ["cmyk-correction", "target-paper", "overprint"], "quality"),
}

# Topic: title and text in the first of LANGUAGES, and so on. A German title ends with the name that
# a queue with English labels shows.
TOPICS = {
    "Graphics": (
        "Image Options", "Here you set how colors and pictures are printed in this job. A choice that doesn’t go with another one is dimmed; change the other one first.",
        "Bildoptionen", "Hier legen Sie fest, wie Farben und Bilder in diesem Auftrag gedruckt werden. Was sich mit einer anderen Einstellung nicht verträgt, ist abgeblendet; ändern Sie dann zuerst die andere."),
    "quality": (
        "Image Quality", "Here you set how colors and pictures are printed in this job. A choice that doesn’t go with another one is dimmed; change the other one first.",
        "Bildqualität", "Hier legen Sie fest, wie Farben und Bilder in diesem Auftrag gedruckt werden. Was sich mit einer anderen Einstellung nicht verträgt, ist abgeblendet; ändern Sie dann zuerst die andere."),
    "ColorBalance": (
        "Color Balance", "In this window you make single inks stronger or weaker.",
        "Farbbalance", "In diesem Fenster verstärken oder schwächen Sie einzelne Druckfarben."),
    "ImageAdj": (
        "Image Settings", "In this window you find color correction in full. RGB settings act on photos and office documents, CMYK settings on documents made for a press.",
        "Bildeinstellungen", "In diesem Fenster finden Sie die gesamte Farbkorrektur. RGB-Einstellungen gelten für Fotos und Bürodokumente, CMYK-Einstellungen für Dokumente, die für den Offsetdruck bestimmt sind."),
    "color-mode": (
        "Color Mode", "Prints in color, or in black and white. In black and white the color settings have no effect and are dimmed.",
        "Farbmodus (Color Mode)", "Druckt in Farbe oder in Schwarzweiß. In Schwarzweiß haben die Farbeinstellungen keine Wirkung und sind abgeblendet."),
    "output-mode": (
        "Output Mode", "How finely the page is printed. A draft saves time and toner.",
        "Ausgabequalität (Output Mode)", "Wie fein die Seite gedruckt wird. Ein Entwurf spart Zeit und Toner."),
    "brightness": (
        "Brightness", "Makes the whole page lighter (to the right) or darker (to the left). The middle is the printer’s own value.",
        "Helligkeit (Brightness)", "Macht die ganze Seite heller (nach rechts) oder dunkler (nach links). In der Mitte gilt der Wert des Druckers."),
    "screen": (
        "Screen", "The pattern of dots from which tones are built. A change of color mode, output mode, image type or RGB color correction sets it back to its default.",
        "Rasterung (Screen)", "Das Punktmuster, aus dem Farbtöne entstehen. Ändern Sie Farbmodus, Ausgabequalität, Bildart oder RGB-Farbkorrektur, gilt hier wieder der Standardwert."),
    "basic-settings": (
        "Basic Settings", "You say what the document shows, and the printer chooses the color correction.",
        "Grundeinstellungen", "Sie geben an, was das Dokument zeigt, und der Drucker wählt die Farbkorrektur."),
    "advanced-settings": (
        "Advanced Settings", "You choose the color correction yourself. This takes the place of the image type.",
        "Erweiterte Einstellungen", "Sie wählen die Farbkorrektur selbst. Das tritt an die Stelle der Bildart."),
    "image-type": (
        "Image Type", "What the document shows for the most part.",
        "Bildart (Image Type)", "Was das Dokument vor allem zeigt."),
    "rgb-correction": (
        "RGB Color Correction", "How colors that the printer can’t print are brought within its reach.",
        "RGB-Farbkorrektur (RGB Color Correction)", "Wie Farben angepasst werden, die der Drucker nicht darstellen kann."),
    "cmyk-correction": (
        "CMYK Color Correction", "The press or the stock that the printer imitates.",
        "CMYK-Farbkorrektur (CMYK Color Correction)", "Die Druckmaschine oder das Papier, das der Drucker nachbildet."),
    "image-settings": (
        "Image Settings…", 'Opens the window <a href="ImageAdj_{}.htm">Image Settings</a>. It is dimmed in black and white.',
        "Bildeinstellungen&nbsp;…", 'Öffnet das Fenster <a href="ImageAdj_{}.htm">Bildeinstellungen</a>. In Schwarzweiß ist die Schaltfläche abgeblendet.'),
    "color-balance": (
        "Color Balance…", 'Opens the window <a href="ColorBalance_{}.htm">Color Balance</a> for single inks.',
        "Farbbalance&nbsp;…", 'Öffnet das Fenster <a href="ColorBalance_{}.htm">Farbbalance</a> für einzelne Druckfarben.'),
    "rgb-profile": (
        "RGB Input Profile", "The color space in which the document was made.",
        "RGB-Eingabeprofil (RGB Input Profile)", "Der Farbraum, in dem das Dokument entstanden ist."),
    "rgb-gamma": (
        "RGB Gamma Correction", "Makes middle tones lighter or darker. It can’t be used together with color balance.",
        "RGB-Gammakorrektur (RGB Gamma Correction)", "Macht mittlere Töne heller oder dunkler. Zusammen mit der Farbbalance lässt sie sich nicht verwenden."),
    "rgb-temperature": (
        "RGB Color Temperature", "The white against which colors are judged. A lower number means a warmer white.",
        "RGB-Farbtemperatur (RGB Color Temperature)", "Das Weiß, an dem Farben gemessen werden. Je kleiner die Zahl, desto wärmer das Weiß."),
    "target-paper": (
        "Target Paper", "The paper for which colors are matched. While CMYK color correction is off there is nothing to match, and the list is dimmed.",
        "Zielpapier (Target Paper)", "Das Papier, auf das die Farben abgestimmt werden. Ist die CMYK-Farbkorrektur aus, gibt es nichts abzustimmen, und die Liste ist abgeblendet."),
    "overprint": (
        "Black Overprint", "Prints black text over the color below it, so that no white edge shows.",
        "Schwarz überdrucken", "Druckt schwarzen Text auf die Farbe darunter, sodass kein weißer Rand entsteht."),
    "adjust": (
        "Adjust Color Balance", "Switches the adjustment on or off as a whole. While it is off, everything below is dimmed.",
        "Farbbalance anpassen", "Schaltet die Anpassung im Ganzen ein oder aus. Solange sie aus ist, ist alles darunter abgeblendet."),
    "target-color": (
        "Target Color", "The ink whose three values are shown. The values of the other inks stay as they are. In black and white only black can be chosen.",
        "Zielfarbe", "Die Druckfarbe, deren drei Werte zu sehen sind. Die Werte der anderen Farben bleiben, wie sie sind. In Schwarzweiß lässt sich nur Schwarz wählen."),
    "low-density": (
        "Low Density", "How strong the ink is in light tones, a whole number from -3 to 3. Type it or use the arrows; 0 is the printer’s own value.",
        "Geringe Dichte", "Wie kräftig die Farbe in hellen Tönen ist, eine ganze Zahl von -3 bis 3. Geben Sie sie ein, oder benutzen Sie die Pfeile; 0 ist der Wert des Druckers."),
    "middle-density": (
        "Middle Density", "The same for middle tones.",
        "Mittlere Dichte", "Dasselbe für mittlere Töne."),
    "high-density": (
        "High Density", "The same for dark tones.",
        "Hohe Dichte", "Dasselbe für dunkle Töne."),
    "preview": (
        "Preview", "A column of bars for each of the three values: low, middle and high density of the target color, from left to right. The more bars, the stronger the ink.",
        "Vorschau", "Eine Säule für jeden der drei Werte, von links nach rechts: geringe, mittlere und hohe Dichte der Zielfarbe. Je mehr Balken, desto kräftiger die Farbe."),
    "ok": (
        "OK", "Takes the values over and closes the window.",
        "OK", "Übernimmt die Werte und schließt das Fenster."),
    "cancel": (
        "Cancel", "Closes the window and leaves the job as it was.",
        "Abbrechen", "Schließt das Fenster und lässt den Auftrag, wie er war."),
    "restore": (
        "Restore Defaults", "Sets everything in this window back to the printer’s defaults. Each window has a button of its own.",
        "Standardwerte", "Setzt alles in diesem Fenster auf die Standardwerte des Druckers zurück. Jedes Fenster hat dafür eine eigene Schaltfläche."),
    "help": (
        "Help", "Opens this page.",
        "Hilfe", "Öffnet diese Seite."),
}

# What a topic says on one printer in place of its own text, in each of LANGUAGES.
INSTEAD = {
    ("MVO220", "image-settings"): (
        "Has no function on this printer: the settings of the window keep their defaults.",
        "Ohne Funktion bei diesem Drucker: Die Einstellungen des Fensters behalten ihre Standardwerte."),
    ("MVO110", "screen"): (
        "The pattern of dots from which tones are built. A change of color mode, output mode or image type sets it back to its default.",
        "Das Punktmuster, aus dem Farbtöne entstehen. Ändern Sie Farbmodus, Ausgabequalität oder Bildart, gilt hier wieder der Standardwert."),
    ("SV500", "screen"): (
        "The pattern of dots from which tones are built. A change of color mode, output mode or image type sets it back to its default.",
        "Das Punktmuster, aus dem Farbtöne entstehen. Ändern Sie Farbmodus, Ausgabequalität oder Bildart, gilt hier wieder der Standardwert."),
    ("MVO110", "ImageAdj"): (
        "In this window you find the gamma correction for photos and office documents.",
        "In diesem Fenster finden Sie die Gammakorrektur für Fotos und Bürodokumente."),
    ("MVO420", "color-mode"): (
        "Prints in color, in black and white, or in two colors. In black and white the color settings have no effect and are dimmed.",
        "Druckt in Farbe, in Schwarzweiß oder zweifarbig. In Schwarzweiß haben die Farbeinstellungen keine Wirkung und sind abgeblendet."),
    ("MVO220", "ImageAdj"): (
        "The MVO-220 uses the defaults of these settings, and its panel doesn’t open the window.",
        "Der MVO-220 verwendet die Standardwerte dieser Einstellungen; das Fenster lässt sich bei ihm nicht öffnen."),
}

# What a topic says besides on one printer, in each of LANGUAGES.
NOTES = {
    ("MVO110", "brightness"): (
        "The leftmost position has no effect.",
        "Die Stellung ganz links hat keine Wirkung."),
    ("MVO420", "output-mode"): (
        "A job that is saved to a mailbox is always printed fine, and the list is dimmed.",
        "Ein Auftrag, der in einem Postfach gespeichert wird, wird immer fein gedruckt; die Liste ist dann abgeblendet."),
    ("MVO420", "advanced-settings"): (
        "CMYK color correction is found in the window Image Settings.",
        "Die CMYK-Farbkorrektur finden Sie im Fenster „Bildeinstellungen“."),
    ("SV500", "image-settings"): (
        "RGB and CMYK color correction are found there.",
        "Dort finden Sie die RGB- und die CMYK-Farbkorrektur."),
}

# On a printer with Advanced Settings: what belongs to one of the two.
IN_BASIC = ["image-type"]
IN_ADVANCED = ["rgb-correction", "rgb-profile", "rgb-temperature", "cmyk-correction",
               "target-paper"]

ENGLISH = {
    "column": 0, "code": "en", "folder": "Help", "book": "Image Options Help",
    "page": "{} for the {}", "all": "All pages", "a-z": "Controls from A to Z",
    "start": "Choose your printer. The first page of each printer tells of the panel itself, the "
             "others of the windows that its buttons open.",
    "basic": "Shown with Basic Settings.",
    "advanced": "Used with Advanced Settings.",
    "mirror": "It is the list of the panel once more: OK changes both.",
}
GERMAN = {
    "column": 1, "code": "de", "folder": "de/Help", "book": "Hilfe zu Bildoptionen",
    "page": "{} am {}", "all": "Alle Seiten", "a-z": "Bedienelemente von A bis Z",
    "start": "Wählen Sie Ihren Drucker. Die erste Seite jedes Druckers beschreibt die Einstellungen "
             "im Druckdialog selbst, die anderen die Fenster, die sich über Schaltflächen öffnen "
             "lassen.",
    "basic": "Zu sehen bei „Grundeinstellungen“.",
    "advanced": "Wirksam bei „Erweiterte Einstellungen“.",
    "mirror": "Es ist dieselbe Liste wie im Druckdialog: OK ändert beide.",
}
LANGUAGES = (ENGLISH, GERMAN)


def heading(language, topic):
    return TOPICS[topic][2 * language["column"]]


def text(language, part, window, topic):
    product = PRODUCTS[part]
    if (part, topic) in INSTEAD:
        return INSTEAD[part, topic][language["column"]]
    sentences = [TOPICS[topic][2 * language["column"] + 1].format(part)]
    if (part, topic) in NOTES:
        sentences.append(NOTES[part, topic][language["column"]])
    if "advanced-settings" in product.panel:
        sentences += [language["basic"]] * (topic in IN_BASIC)
        sentences += [language["advanced"]] * (topic in IN_ADVANCED)
    if window == "ImageAdj" and topic in product.panel:
        sentences.append(language["mirror"])
    return " ".join(sentences)


def document(language, title, body):
    return "\n".join([
        "<!DOCTYPE html>", f'<html lang="{language["code"]}">', "<head>",
        '<meta charset="utf-8">', f"<title>{title}</title>", "</head>", "<body>", *body,
        "</body>", "</html>", ""])


def window_topic(part, window):
    return PRODUCTS[part].title if window == "Graphics" else window


def link(page, label, anchor=""):
    return f'<a href="{page}.htm{anchor}">{label}</a>'


def page(language, part, window):
    topic = window_topic(part, window)
    title = language["page"].format(heading(language, topic), PRODUCTS[part].name)
    topics = PRODUCTS[part].topics(window)
    body = [f"<h1>{title}</h1>", f'<p>{text(language, part, window, topic)}</p>',
            "<p>" + " | ".join(f'<a href="#{name}">{heading(language, name)}</a>'
                               for name in topics) + "</p>"]
    for name in topics:
        body += [f'<h3><a name="{name}"></a>{heading(language, name)}</h3>',
                 f"<p>{text(language, part, window, name)}</p>"]
    others = [link(f"{other}_{part}", heading(language, window_topic(part, other)))
              for other in WINDOWS if other != window]
    body += ["<hr>", f'<p>{" | ".join(others)} | {link("index", language["all"])}</p>']
    return document(language, title, body)


def index(language):
    body = [f'<h1>{language["book"]}</h1>', f'<p>{language["start"]}</p>']
    places = {}  # of a control: its pages
    for part, product in PRODUCTS.items():
        links = [f"<li>{link(f'{window}_{part}', heading(language, window_topic(part, window)))}</li>"
                 for window in WINDOWS]
        body += [f"<h3>{product.name}</h3>", "<ul>", *links, "</ul>"]
        for window in WINDOWS:
            for name in product.topics(window):
                if name not in ("ok", "cancel", "help"):
                    places.setdefault(name, {}).setdefault(part, f"{window}_{part}")
    body += [f'<h2>{language["a-z"]}</h2>', "<ul>"]
    for name in sorted(places, key=lambda name: heading(language, name).casefold()):
        links = [link(place, PRODUCTS[part].name, f"#{name}")
                 for part, place in places[name].items()]
        body.append(f'<li>{heading(language, name)}: {", ".join(links)}</li>')
    return document(language, language["book"], body + ["</ul>"])


def main():
    for language in LANGUAGES:
        folder = Path(__file__).resolve().parent / language["folder"]
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "index.htm").write_text(index(language), encoding="utf-8")
        for part in PRODUCTS:
            for window in WINDOWS:
                (folder / f"{window}_{part}.htm").write_text(page(language, part, window),
                                                             encoding="utf-8")


if __name__ == "__main__":
    main()

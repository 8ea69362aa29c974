#!/usr/bin/env python3
"""Writes the pages of the help book, Help/ in English and de/Help/ in German.

The pages are kept under version control, and the build doesn't run this script. A page is named
after its window and the help part of the queue ("Graphics_MVO110.htm"). It tells of the settings
that the queue has, in the order of the window.
"""

from pathlib import Path

ALWAYS = ["color-mode", "output-mode", "brightness", "screen", "settings", "image-type"]
BUTTONS = ["color-balance", "image-settings", "restore"]
RGB = ["rgb-profile", "rgb-gamma", "rgb-temperature"]

# Help part: settings of the main panel, settings of the image settings window.
PRODUCTS = {
    "MVO110": (ALWAYS, ["rgb-gamma"]),
    "MVO220": (ALWAYS + ["rgb-correction"], ["rgb-correction"] + RGB + ["profiles"]),
    "MVO420": (ALWAYS + ["rgb-correction", "cmyk-correction"],
               ["rgb-correction"] + RGB + ["cmyk-correction"]),
    "MVO530": (ALWAYS + ["rgb-correction", "cmyk-correction"],
               ["rgb-correction"] + RGB + ["cmyk-correction", "target-paper", "overprint"]),
}
BALANCE = ["adjust", "target-color", "densities", "preview"]
WINDOWS = ["Graphics", "ColorBalance", "ImageAdj"]

ENGLISH = {
    "language": "en", "folder": "Help", "book": "Image Options Help", "for": "for the {}",
    "contents": "All pages",
    "start": "Choose your printer. The first page of each printer tells of the panel itself, the "
             "others of the windows that its buttons open.",
    "Graphics": ("Image Options", "With Image Options you set how color and pictures are printed "
                 "in this job. A choice that doesn't go with another one is dimmed. Change the "
                 "other one first."),
    "ColorBalance": ("Color Balance", "Here you make single inks stronger or weaker. OK takes the "
                     "values over, Cancel leaves them as they were."),
    "ImageAdj": ("Image Settings", "Here you find color correction in full. RGB settings act on "
                 "photos and office documents, CMYK settings on documents made for a press. The "
                 "lists can be used while Advanced Settings is chosen."),
    "color-mode": ("Color Mode", "Prints in color, or in black and white. In black and white the "
                   "color settings don't matter and are dimmed."),
    "output-mode": ("Output Mode", "How finely the page is printed. Draft saves time and toner."),
    "brightness": ("Brightness", "Makes the whole page lighter (to the right) or darker."),
    "screen": ("Screen", "The pattern from which tones are built. A change of color mode, output "
               "mode, image type or RGB correction sets it back to its default."),
    "settings": ("Basic Settings, Advanced Settings", "Basic: one choice of image type is enough. "
                 "Advanced: you choose the corrections yourself."),
    "image-type": ("Image Type", "What the document shows for the most part. Shown with Basic "
                   "Settings."),
    "rgb-correction": ("RGB Color Correction", "How colors that the printer can't print are "
                       "brought within its reach. Used with Advanced Settings."),
    "cmyk-correction": ("CMYK Color Correction", "The press or stock that the printer imitates. "
                        "Used with Advanced Settings."),
    "color-balance": ("Color Balance…", "Opens the window for single inks: "
                      '<a href="ColorBalance_{}.htm">Color Balance</a>.'),
    "image-settings": ("Image Settings…", "Opens the window for color correction: "
                       '<a href="ImageAdj_{}.htm">Image Settings</a>.'),
    "restore": ("Restore Defaults", "Sets everything in this window back to the printer's "
                "defaults. Each window has a button of its own."),
    "rgb-profile": ("RGB Input Profile", "The color space in which the document was made."),
    "rgb-gamma": ("RGB Gamma Correction", "Makes middle tones lighter or darker. It can't be used "
                  "together with color balance."),
    "rgb-temperature": ("RGB Color Temperature", "The white against which colors are judged."),
    "target-paper": ("Target Paper", "The paper for which colors are matched. Without CMYK color "
                     "correction there is nothing to match."),
    "overprint": ("Black Overprint", "Prints black text over the color below it, so that no white "
                  "edge shows."),
    "profiles": ("Ignore Embedded Profiles", "Profiles inside the document are set aside."),
    "adjust": ("Adjust Color Balance", "Switches the adjustment on or off as a whole."),
    "target-color": ("Target Color", "The ink whose three values are shown. In black and white "
                     "that is black alone."),
    "densities": ("Low, Middle, High Density", "How strong the ink is in light, middle and dark "
                  "tones, in whole numbers from -3 to 3. 0 is the printer's own value."),
    "preview": ("Preview", "One column for each of the three values."),
}

GERMAN = {
    "language": "de", "folder": "de/Help", "book": "Hilfe zu Bildoptionen", "for": "am {}",
    "contents": "Alle Seiten",
    "start": "Wählen Sie Ihren Drucker. Die erste Seite jedes Druckers beschreibt die Bildoptionen "
             "selbst, die anderen die Fenster, die sich mit den Tasten öffnen lassen.",
    "Graphics": ("Bildoptionen", "Mit den Bildoptionen legen Sie fest, wie Farben und Bilder in "
                 "diesem Auftrag gedruckt werden. Eine Einstellung, die sich mit einer anderen "
                 "nicht verträgt, ist grau. Ändern Sie zuerst die andere."),
    "ColorBalance": ("Farbbalance", "Hier verstärken oder schwächen Sie einzelne Farben. OK "
                     "übernimmt die Werte, Abbrechen lässt sie, wie sie waren."),
    "ImageAdj": ("Bildeinstellungen", "Hier finden Sie die Farbkorrektur im Ganzen. RGB gilt für "
                 "Fotos und Bürodokumente, CMYK für Dokumente, die für den Offsetdruck gemacht "
                 "sind. Die Listen sind benutzbar, solange „Erweiterte Einstellungen“ gewählt "
                 "ist."),
    "color-mode": ("Farbmodus (Color Mode)", "Druckt in Farbe oder in Schwarzweiß. In Schwarzweiß "
                   "sind die Farbeinstellungen ohne Wirkung und grau."),
    "output-mode": ("Ausgabemodus (Output Mode)", "Wie fein gedruckt wird. „Draft“ spart Zeit und "
                    "Toner."),
    "brightness": ("Helligkeit (Brightness)", "Macht die ganze Seite heller (nach rechts) oder "
                   "dunkler."),
    "screen": ("Raster (Screen)", "Das Muster, aus dem Töne entstehen. Ändern Sie Farbmodus, "
               "Ausgabemodus, Bildart oder RGB-Korrektur, gilt wieder der Standardwert."),
    "settings": ("Grundeinstellungen, Erweiterte Einstellungen", "Grundeinstellungen: Es genügt, "
                 "die Bildart zu wählen. Erweitert: Sie wählen die Korrekturen selbst."),
    "image-type": ("Bildart (Image Type)", "Was das Dokument vor allem zeigt. Zu sehen bei "
                   "„Grundeinstellungen“."),
    "rgb-correction": ("RGB-Farbkorrektur (RGB Color Correction)", "Wie Farben angepasst werden, "
                       "die der Drucker nicht darstellen kann. Gilt bei „Erweiterte "
                       "Einstellungen“."),
    "cmyk-correction": ("CMYK-Farbkorrektur (CMYK Color Correction)", "Die Druckmaschine oder das "
                        "Papier, das der Drucker nachahmt. Gilt bei „Erweiterte Einstellungen“."),
    "color-balance": ("Farbbalance …", "Öffnet das Fenster für einzelne Farben: "
                      '<a href="ColorBalance_{}.htm">Farbbalance</a>.'),
    "image-settings": ("Bildeinstellungen …", "Öffnet das Fenster für die Farbkorrektur: "
                       '<a href="ImageAdj_{}.htm">Bildeinstellungen</a>.'),
    "restore": ("Standardwerte wiederherstellen", "Setzt alles in diesem Fenster auf die Werte des "
                "Druckers zurück. Jedes Fenster hat dafür eine eigene Taste."),
    "rgb-profile": ("RGB-Eingabeprofil (RGB Input Profile)", "Der Farbraum, in dem das Dokument "
                    "entstanden ist."),
    "rgb-gamma": ("RGB-Gammakorrektur (RGB Gamma Correction)", "Macht mittlere Töne heller oder "
                  "dunkler. Sie verträgt sich nicht mit der Farbbalance."),
    "rgb-temperature": ("RGB-Farbtemperatur (RGB Color Temperature)", "Das Weiß, an dem Farben "
                        "gemessen werden."),
    "target-paper": ("Zielpapier (Target Paper)", "Das Papier, auf das Farben abgestimmt werden. "
                     "Ohne CMYK-Farbkorrektur gibt es nichts abzustimmen."),
    "overprint": ("Schwarz überdrucken (Black Overprint)", "Druckt schwarzen Text auf die Farbe "
                  "darunter, damit kein weißer Rand entsteht."),
    "profiles": ("Eingebettete Profile ignorieren (Ignore Embedded Profiles)", "Profile im "
                 "Dokument bleiben ohne Wirkung."),
    "adjust": ("Farbbalance anpassen (Adjust Color Balance)", "Schaltet die Anpassung im Ganzen "
               "ein oder aus."),
    "target-color": ("Zielfarbe", "Die Farbe, deren drei Werte zu sehen sind. In Schwarzweiß ist "
                     "das nur Schwarz."),
    "densities": ("Geringe, mittlere, hohe Dichte", "Wie kräftig die Farbe in hellen, mittleren "
                  "und dunklen Tönen ist, in ganzen Zahlen von -3 bis 3. 0 ist der Wert des "
                  "Druckers."),
    "preview": ("Vorschau", "Eine Säule für jeden der drei Werte."),
}


def model(product):
    return f"MVO-{product[3:]}"


def document(texts, title, body):
    return "\n".join([
        "<!DOCTYPE html>", f'<html lang="{texts["language"]}">', "<head>",
        '<meta charset="utf-8">', f"<title>{title}</title>", "</head>", "<body>", *body,
        "</body>", "</html>", ""])


def page(texts, product, window):
    panel, settings = PRODUCTS[product]
    topics = {"Graphics": panel + BUTTONS, "ColorBalance": BALANCE + BUTTONS[2:],
              "ImageAdj": settings + BUTTONS[2:]}[window]
    name, about = texts[window]
    title = f'{name} {texts["for"].format(model(product))}'
    body = [f"<h1>{title}</h1>", f"<p>{about}</p>"]
    for topic in topics:
        heading, text = texts[topic]
        body += [f'<h3><a name="{topic}"></a>{heading}</h3>', f"<p>{text.format(product)}</p>"]
    links = [f'<a href="{other}_{product}.htm">{texts[other][0]}</a>'
             for other in WINDOWS if other != window]
    body += ["<hr>", f'<p>{" | ".join(links)} | <a href="index.htm">{texts["contents"]}</a></p>']
    return document(texts, title, body)


def index(texts):
    body = [f'<h1>{texts["book"]}</h1>', f'<p>{texts["start"]}</p>']
    for product in PRODUCTS:
        links = [f'<li><a href="{window}_{product}.htm">{texts[window][0]}</a></li>'
                 for window in WINDOWS]
        body += [f"<h3>Velmora {model(product)}</h3>", "<ul>", *links, "</ul>"]
    return document(texts, texts["book"], body)


def main():
    for texts in (ENGLISH, GERMAN):
        folder = Path(__file__).resolve().parent / texts["folder"]
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "index.htm").write_text(index(texts), encoding="utf-8")
        for product in PRODUCTS:
            for window in WINDOWS:
                (folder / f"{window}_{product}.htm").write_text(page(texts, product, window),
                                                                encoding="utf-8")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Writes the sample queues (PPD 4.3).

    make_queues.py                 those that are kept under version control, beside this file
    make_queues.py --build FOLDER  those that the build writes: one is large, one names its folder

Run it after a change of the tables below, then `cupstestppd -W none *.ppd`.

A choice is a pair (keyword, label). Each option stands in the order in which its menu shows it.
Every choice carries harmless PostScript that leaves a trace in the job:
`userdict /QZColorMode (Color) put`.
"""

import os
import re
import sys
from dataclasses import dataclass, field, replace
from itertools import combinations
from pathlib import Path

sys.dont_write_bytecode = True
import labels  # noqa: E402

EDITED = "Tue Nov 24 2026"
VERSION = "1.0"


@dataclass
class Option:
    keyword: str
    title: str
    default: str
    choices: list
    order: tuple  # position and section of *OrderDependency
    kind: str = "PickOne"
    code: dict = field(default_factory=dict)  # of a choice, where it isn't just a trace
    typed: list = field(default_factory=list)  # parameters of a custom choice, as the file has them
    typed_code: str = ""


@dataclass(frozen=True)
class Language:
    name: str
    encoding: str  # of *LanguageEncoding
    codec: str
    labels: dict = None  # by the English text

    def say(self, text):
        """Numbers and units are the same in each language; a word must stand in the table."""
        return self.labels[text] if self.labels and re.search("[A-Za-z]{2}", text) else text

    def of(self, option):
        return replace(option, title=self.say(option.title),
                       choices=[(keyword, self.say(text)) for keyword, text in option.choices])


ENGLISH = Language("English", "ISOLatin1", "latin-1")
GERMAN = Language("German", "WindowsANSI", "cp1252", labels.GERMAN)
JAPANESE = Language("Japanese", "JIS83-RKSJ", "shift_jis", labels.JAPANESE)


@dataclass
class Queue:
    file: str
    model: str
    pc_file: str
    about: str
    attributes: list
    image: list  # options of the group "Image"
    balance: list  # options of the group "Color balance"
    constraints: list = field(default_factory=list)  # (remark, [first half, second half] ...)
    brand: str = "Velmora"
    language: Language = ENGLISH
    office: bool = False  # a choice of paper types, pages of any size, PIN and account


# ---- Options that every queue has ---------------------------------------------------------------

PAGES = [("A4", "A4", 595, 842), ("Letter", "US Letter", 612, 792), ("A3", "A3", 842, 1191)]
MARGIN = 12

GENERAL = [
    *(Option(keyword, title, "A4", [(name, label) for name, label, *_ in PAGES],
             (10, "AnySetup"),
             code={name: f"<</PageSize[{w} {h}]/ImagingBBox null>>setpagedevice"
                   for name, _, w, h in PAGES})
      for keyword, title in (("PageSize", "Page Size"), ("PageRegion", "Page Region"))),
    Option("InputSlot", "Paper Source", "Auto", [
        ("Auto", "Automatic"), ("Tray1", "Tray 1"), ("Tray2", "Tray 2"),
        ("ManualFeed", "Manual Feed")], (11, "AnySetup")),
    Option("Duplex", "Two-Sided Printing", "None", [
        ("None", "Off"), ("DuplexNoTumble", "Long Edge"), ("DuplexTumble", "Short Edge")],
        (12, "AnySetup"), code={
            "None": "<</Duplex false>>setpagedevice",
            "DuplexNoTumble": "<</Duplex true/Tumble false>>setpagedevice",
            "DuplexTumble": "<</Duplex true/Tumble true>>setpagedevice"}),
]

# ---- Options for what people type ---------------------------------------------------------------

LONGEST = 1296  # of a page, in points
OFFICE_GENERAL = [
    replace(GENERAL[0], typed_code="pop pop pop <</PageSize[5 -2 roll]/ImagingBBox null>>setpagedevice",
            typed=["Width: 1 points 72 936", f"Height: 2 points 72 {LONGEST}",
                   "WidthOffset: 3 points 0 0", "HeightOffset: 4 points 0 0",
                   "Orientation: 5 int 0 0"]),
    *GENERAL[1:],
    Option("MediaType", "Paper Type", "Plain", [
        ("Plain", "Plain Paper"), ("Thick", "Thick Paper"), ("Transparency", "Transparency")],
        (13, "AnySetup")),
]
OFFICE_JOB = [
    Option("VLJobPIN", "Confidential Printing", "Off", [("Off", "Off")], (14, "AnySetup"),
           typed=["PIN/PIN: 1 passcode 4 8"], typed_code="userdict /VLJobPIN 3 -1 roll put"),
    Option("VLAccount", "Account", "None", [("None", "None")], (15, "AnySetup"),
           typed=["Code/Department Code: 1 string 1 20"],
           typed_code="userdict /VLAccount 3 -1 roll put"),
]

# ---- Options of the panel -----------------------------------------------------------------------


def color_mode(choices=(("Color", "Color"), ("Black", "Black and White"))):
    """The second choice is black and white in every queue."""
    return Option("QZColorMode", "Color Mode", choices[0][0], choices, (20, "AnySetup"))


def output_mode(default, choices):
    return Option("QZOutputMode", "Output Mode", default, choices, (22.5, "DocumentSetup"))


def brightness(high, low):
    """Rows run from the brightest down."""
    rows = [(str(n), f"{n:+d}" if n else "0 (standard)") for n in range(high, low - 1, -1)]
    return Option("QZBrightness", "Brightness", "0", rows, (35, "PageSetup"))


def image_type(default, choices):
    return Option("QZRGBImageType", "Image Type", default, choices, (40, "DocumentSetup"))


def rgb_correction(default, choices):
    """The panel keeps "None" out of its menu, and sends it where no correction applies."""
    return Option("QZRGBCorrection", "RGB Color Correction", default, [("None", "Off"), *choices],
                  (41, "AnySetup"))


def cmyk_correction(default, choices):
    return Option("QZCMYKCorrectionSTD", "CMYK Color Correction", default, choices,
                  (42, "AnySetup"))


def screen(choices):
    return Option("QZEngineScreen", "Screen", choices[0][0], choices, (60, "PageSetup"))


def input_profile(choices):
    return Option("QZRGBInputProfile", "RGB Input Profile", "sRGB",
                  [("sRGB", "sRGB"), *choices, ("Off", "Device RGB")], (43, "DocumentSetup"))


def gamma(choices):
    return Option("QZRGBGammaCorrection", "RGB Gamma Correction", "None",
                  [("None", "Off"), *choices], (44, "DocumentSetup"))


def temperature(choices):
    return Option("QZColorTemperature", "RGB Color Temperature", "None",
                  [("None", "As in the Profile"), *choices], (45, "DocumentSetup"))


def target_paper(choices):
    return Option("QZCMYKCorrectionTarget", "Target Paper", "None",
                  [("None", "Paper in the Tray"), *choices], (46, "AnySetup"))


def check_box(keyword, title, order, true_first=False):
    rows = [("False", "Off"), ("True", "On")]
    return Option(keyword, title, "False", rows[::-1] if true_first else rows, order, "Boolean")


def densities():
    """Twelve options whose keywords are the numbers that the panel shows."""
    rows = [(str(n), f"{n:+d}" if n else "0") for n in range(3, -4, -1)]
    place = 50
    for level in labels.LEVELS:
        for ink in labels.INKS:
            place += 0.25
            yield Option(f"QZColorDensity{ink}{level}", f"{ink} Density, {level}", "0", rows,
                         (place, "DocumentSetup" if ink == "Black" else "AnySetup"))


def color_balance(true_first=False):
    return [check_box("QZColorBalanceAdjustment", "Adjust Color Balance", (50, "DocumentSetup"),
                      true_first), *densities()]


# ---- Constraints --------------------------------------------------------------------------------


def both_ways(remark, one, other):
    return (remark, [(one, other), (other, one)])


MANUAL_DUPLEX = both_ways("Manual feed takes single sheets.", "*InputSlot ManualFeed", "*Duplex")
MANUAL_DRAFT = both_ways("Sheets fed by hand are never drafts.",
                         "*InputSlot ManualFeed", "*QZOutputMode Draft")
FINE_DUPLEX = both_ways("Fine output needs one side to dry.", "*QZOutputMode Fine", "*Duplex")
BLACK_PHOTO = both_ways("Photographs are printed in color.",
                        "*QZColorMode Black", "*QZRGBImageType Photo")
BLACK_SCREEN = both_ways("The gradation screen is made for color.",
                         "*QZColorMode Black", "*QZEngineScreen Gradation")
BALANCE_GAMMA = both_ways("Color balance and gamma shape the same curve.",
                          "*QZColorBalanceAdjustment", "*QZRGBGammaCorrection")
PROFILE_TEMPERATURE = both_ways("Device RGB has no white point.",
                                "*QZRGBInputProfile Off", "*QZColorTemperature")
DRAFT_PAPER = both_ways("A draft isn't matched to a paper.",
                        "*QZOutputMode Draft", "*QZCMYKCorrectionTarget")
TEMPERATURE_PAPER = both_ways("The white point comes from one of the two.",
                              "*QZColorTemperature", "*QZCMYKCorrectionTarget")
STOCHASTIC_VIVID = both_ways("The fine-grained screen can't hold vivid colors.",
                             "*QZEngineScreen Stochastic", "*QZRGBCorrection Saturation")
OVERPRINT_BLACK = both_ways("Overprint needs the other inks.",
                            "*QZBlackOverprint True", "*QZColorMode Black")
INVALIDATE_PROFILE = both_ways("A profile that is set aside can't be asked for.",
                               "*QZInvalidateColorProfile True", "*QZRGBInputProfile AdobeRGB")


def draft_brightness(level):
    return both_ways("A draft has no ink to spare.", "*QZOutputMode Draft",
                     f"*QZBrightness {level}")


# The choices furthest from the middle. An option keeps at least two others, but for those of two
# choices; of numbers these are the ones from 2 up and from -2 down.
EXTREMES = {
    "QZColorMode": ["Black"],
    "QZOutputMode": ["Draft", "SuperFine"],
    "QZBrightness": ["3", "2", "-2", "-3"],
    "QZRGBImageType": ["Photo", "Portrait", "Landscape", "Product", "Artwork", "Graphics", "Chart",
                       "Map", "Drawing", "WebPage"],
    "QZRGBCorrection": ["Saturation", "Absolute"],
    "QZCMYKCorrectionSTD": ["Newsprint", "Proof"],
    "QZEngineScreen": ["Gradation", "Stochastic"],
    "QZRGBInputProfile": ["Display", "Scanner", "Off"],
    "QZColorTemperature": ["D75", "D93"],
    "QZBlackOverprint": ["True"],
    **{option.keyword: ["3", "2", "-2", "-3"] for option in densities()},
}


def weight(choice):
    return abs(int(choice)) if choice.lstrip("-").isdigit() else 3


def many_constraints(stated, lines):
    """The stated constraints, and more of them up to a number of lines.

    An extreme excludes those of other options, the heaviest pairs first; some exclude all of gamma or
    target paper. None is a default, so that at first nothing is forbidden, and beside an extreme the
    milder choices remain.
    """
    result = stated + [
        both_ways("Brightness this far from the middle leaves gamma no room.",
                  f"*QZBrightness {n}", "*QZRGBGammaCorrection")
        for n in EXTREMES["QZBrightness"]
    ] + [
        both_ways("How much ink a shadow takes comes from one of the two.",
                  f"*QZColorDensity{ink}High {n}", "*QZCMYKCorrectionTarget")
        for ink in labels.INKS for n in EXTREMES[f"QZColorDensity{ink}High"]
    ]
    taken = {pair for _, pairs in result for pair in pairs}
    extremes = [(keyword, choice) for keyword, some in EXTREMES.items() for choice in some]
    more = [(f"*{one[0]} {one[1]}", f"*{other[0]} {other[1]}")
            for one, other in sorted(combinations(extremes, 2),
                                     key=lambda pair: -sum(weight(choice) for _, choice in pair))
            if one[0] != other[0]]
    more = [pair for pair in more if pair not in taken][:(lines - len(taken)) // 2]
    assert len(taken) + 2 * len(more) == lines
    return result + [("Two extremes at once are more than the engine holds.",
                      [half for pair in more for half in (pair, pair[::-1])])]


# ---- Queues -------------------------------------------------------------------------------------

DRAFT, NORMAL, FINE = ("Draft", "Draft"), ("Normal", "Normal"), ("Fine", "Fine")
PERCEPTUAL, SATURATION = ("Perceptual", "Perceptual"), ("Saturation", "Vivid")
COLORIMETRIC, ABSOLUTE = ("Colorimetric", "Colorimetric"), ("Absolute", "Absolute Colorimetric")
AUTO, PHOTO = ("Auto", "Automatic"), ("Photo", "Photo")
GRAPHICS, TEXT, MIXED = ("Graphics", "Graphics"), ("Text", "Text"), ("Mixed", "Text & Graphics")
GAMMAS = [(f"Gamma{n}", f"Gamma {n / 10}") for n in (10, 14, 18, 22)]
TEMPERATURES = [("D50", "5000 K"), ("D65", "6500 K"), ("D75", "7500 K"), ("D93", "9300 K")]
SCREENS = [AUTO, ("Resolution", "Resolution"), ("Gradation", "Gradation"),
           ("Stochastic", "Stochastic")]

MVO_110 = Queue(
    "velmora-mvo-110.ppd", "MVO-110", "VLMVO110.PPD",
    "19 image options, even number of brightness rows, strings table 01.",
    [("QZXImageOptionsSettings", "Default01-MVO110"), ("QZLocalizableFileIndex", "01")],
    [color_mode(),
     output_mode("Normal", [DRAFT, NORMAL, FINE]),
     brightness(2, -1),
     image_type("Auto", [AUTO, PHOTO, GRAPHICS, TEXT]),
     screen(SCREENS[:3]),
     gamma(GAMMAS[2:])],
    color_balance(),
    [MANUAL_DUPLEX, MANUAL_DRAFT, FINE_DUPLEX, BLACK_PHOTO, BLACK_SCREEN, draft_brightness(2),
     BALANCE_GAMMA])

MVO_220 = Queue(
    "velmora-mvo-220.ppd", "MVO-220", "VLMVO220.PPD",
    "22 image options, profile check box, check boxes with True first.",
    [("QZXImageOptionsSettings", "Default02-MVO220")],
    [color_mode(),
     output_mode("Normal", [FINE, NORMAL, DRAFT]),
     brightness(2, -2),
     image_type("Mixed", [PHOTO, GRAPHICS, TEXT, MIXED, ("Map", "Map"), ("Drawing", "Drawing")]),
     rgb_correction("Saturation", [COLORIMETRIC, SATURATION]),
     screen(SCREENS[:3]),
     input_profile([("AdobeRGB", "Adobe RGB (1998)")]),
     gamma(GAMMAS[1:]),
     temperature(TEMPERATURES[:2]),
     check_box("QZInvalidateColorProfile", "Ignore Embedded Profiles", (48, "AnySetup"), True)],
    color_balance(true_first=True),
    [MANUAL_DUPLEX, MANUAL_DRAFT, FINE_DUPLEX, BLACK_PHOTO, BLACK_SCREEN, draft_brightness(2),
     BALANCE_GAMMA, PROFILE_TEMPERATURE, INVALIDATE_PROFILE])

MVO_420 = Queue(
    "velmora-mvo-420.ppd", "MVO-420", "VLMVO420.PPD",
    "23 image options, mailbox jobs with fine output.",
    [("QZXImageOptionsSettings", "Default03-MVO420"), ("QZXMailBoxSettings", "AutoFine")],
    [color_mode((("Color", "Color"), ("Black", "Black and White"), ("TwoColor", "Two Colors"))),
     output_mode("Normal", [DRAFT, NORMAL, FINE, ("SuperFine", "Super Fine")]),
     brightness(3, -3),
     image_type("Auto", [AUTO, PHOTO, ("Portrait", "Portrait"), ("Landscape", "Landscape"),
                         GRAPHICS, ("Chart", "Chart"), TEXT, MIXED]),
     rgb_correction("Perceptual", [PERCEPTUAL, SATURATION, COLORIMETRIC]),
     cmyk_correction("Coated", [("Coated", "Coated Stock"), ("Uncoated", "Uncoated Stock"),
                                ("Newsprint", "Newsprint"), ("None", "Off")]),
     screen(SCREENS),
     input_profile([("AdobeRGB", "Adobe RGB (1998)"), ("Display", "Display")]),
     gamma(GAMMAS),
     temperature(TEMPERATURES[:3])],
    color_balance(),
    [MANUAL_DUPLEX, MANUAL_DRAFT, FINE_DUPLEX, BLACK_PHOTO, BLACK_SCREEN, draft_brightness(3),
     BALANCE_GAMMA, PROFILE_TEMPERATURE, STOCHASTIC_VIVID])

MVO_530 = Queue(
    "velmora-mvo-530.ppd", "MVO-530", "VLMVO530.PPD",
    "All 24 image options and black overprint.",
    [("QZXImageOptionsSettings", "Default00-MVO530")],
    [color_mode(),
     output_mode("Normal", [DRAFT, NORMAL, FINE, ("SuperFine", "Super Fine")]),
     brightness(3, -3),
     image_type("Auto", [AUTO, PHOTO, ("Portrait", "Portrait"), ("Landscape", "Landscape"),
                         ("Product", "Product"), ("Artwork", "Artwork"), GRAPHICS,
                         ("Chart", "Chart"), ("Map", "Map"), ("Drawing", "Drawing"), TEXT, MIXED,
                         ("WebPage", "Web Page")]),
     rgb_correction("Colorimetric", [SATURATION, PERCEPTUAL, COLORIMETRIC, ABSOLUTE]),
     cmyk_correction("PressA", [("None", "Off"), ("PressA", "Commercial Press A"),
                                ("PressB", "Commercial Press B"), ("Newsprint", "Newsprint"),
                                ("Proof", "Contract Proof")]),
     screen(SCREENS),
     input_profile([("AdobeRGB", "Adobe RGB (1998)"), ("Display", "Display"),
                    ("Scanner", "Scanner")]),
     gamma(GAMMAS),
     temperature(TEMPERATURES),
     target_paper([("Plain", "Plain Paper"), ("Coated", "Coated Paper"),
                   ("Matte", "Matte Coated Paper")]),
     check_box("QZBlackOverprint", "Black Overprint", (47, "PageSetup"))],
    color_balance(),
    [MANUAL_DUPLEX, MANUAL_DRAFT, FINE_DUPLEX, BLACK_PHOTO, BLACK_SCREEN, draft_brightness(3),
     BALANCE_GAMMA, PROFILE_TEMPERATURE, STOCHASTIC_VIVID, DRAFT_PAPER, TEMPERATURE_PAPER,
     OVERPRINT_BLACK])

MVO_530_DE = replace(
    MVO_530, file="velmora-mvo-530-de.ppd", model="MVO-530 DE", pc_file="VLM530DE.PPD",
    about="The MVO-530 with German labels in Windows ANSI.", language=GERMAN)

MVO_530_JA = replace(
    MVO_530, file="velmora-mvo-530-ja.ppd", model="MVO-530 JA", pc_file="VLM530JA.PPD",
    about="The MVO-530 with Japanese labels in Shift_JIS.", language=JAPANESE)

MVO_590 = replace(
    MVO_530, file="velmora-mvo-590.ppd", model="MVO-590", pc_file="VLMVO590.PPD",
    about="The MVO-530 with 5,000 lines of constraints.",
    constraints=many_constraints(MVO_530.constraints, 5000))

SV500 = Queue(
    "sorvani-sv500.ppd", "SV500", "SVSV500.PPD",
    "All 24 image options, black overprint and profile check box, strings table 02.",
    [("QZXImageOptionsSettings", "Sorvani00-SV500"), ("QZLocalizableFileIndex", "02")],
    [color_mode(),
     output_mode("Normal", [FINE, NORMAL, DRAFT]),
     brightness(2, -2),
     image_type("Auto", [AUTO, PHOTO, GRAPHICS, TEXT, MIXED, ("WebPage", "Web Page")]),
     rgb_correction("Absolute", [PERCEPTUAL, SATURATION, ABSOLUTE]),
     cmyk_correction("Uncoated", [("Coated", "Coated Stock"), ("None", "Off"),
                                  ("Uncoated", "Uncoated Stock")]),
     screen(SCREENS[:3]),
     input_profile([("AdobeRGB", "Adobe RGB (1998)"), ("Scanner", "Scanner")]),
     gamma(GAMMAS[1:]),
     temperature(TEMPERATURES[:3]),
     target_paper([("Plain", "Plain Paper"), ("Coated", "Coated Paper")]),
     check_box("QZBlackOverprint", "Black Overprint", (47, "PageSetup")),
     check_box("QZInvalidateColorProfile", "Ignore Embedded Profiles", (48, "AnySetup"))],
    color_balance(),
    [MANUAL_DUPLEX, MANUAL_DRAFT, FINE_DUPLEX, BLACK_PHOTO, BLACK_SCREEN, draft_brightness(2),
     BALANCE_GAMMA, PROFILE_TEMPERATURE, DRAFT_PAPER, TEMPERATURE_PAPER, OVERPRINT_BLACK,
     INVALIDATE_PROFILE],
    brand="Sorvani")

TRANSPARENCY_DUPLEX = both_ways("A transparency has one side.", "*MediaType Transparency", "*Duplex")

MVO_540 = replace(
    MVO_530, file="velmora-mvo-540.ppd", model="MVO-540", pc_file="VLMVO540.PPD",
    about="The MVO-530 with paper types, pages of any size, a PIN and an account.",
    constraints=[TRANSPARENCY_DUPLEX, *MVO_530.constraints], office=True)

PLAIN = Queue(
    "velmora-plain.ppd", "Plain", "VLPLAIN.PPD", "No image options, so no panel.", [], [], [],
    [MANUAL_DUPLEX])

KEPT = [MVO_110, MVO_220, MVO_420, MVO_530, MVO_530_DE, MVO_530_JA, MVO_540, SV500, PLAIN]


def built(folder):
    """The queues that the build writes into a folder."""
    cache = os.fsencode(folder / "velmora-mvo-530.cdf").decode(ENGLISH.codec)
    return [MVO_590, replace(
        MVO_530, file="velmora-mvo-530-cached.ppd", model="MVO-530 Cached", pc_file="VLM530CD.PPD",
        about="The MVO-530 with its constraints in a cache file.",
        attributes=[*MVO_530.attributes, ("QZXCDFSetting", cache)])]


# ---- Text of a file -----------------------------------------------------------------------------

FONTS = ["Courier", "Courier-Bold", "Courier-BoldOblique", "Courier-Oblique", "Helvetica",
         "Helvetica-Bold", "Helvetica-BoldOblique", "Helvetica-Oblique", "Symbol", "Times-Bold",
         "Times-BoldItalic", "Times-Italic", "Times-Roman", "ZapfDingbats"]


def head(queue):
    name = f"{queue.brand} {queue.model}"
    yield '*PPD-Adobe: "4.3"'
    yield f"*% {name}: {queue.about}"
    yield f"*% Last Edit Date: {EDITED}"
    yield '*FormatVersion: "4.3"'
    yield f'*FileVersion: "{VERSION}"'
    yield f"*LanguageVersion: {queue.language.name}"
    yield f"*LanguageEncoding: {queue.language.encoding}"
    yield f'*PCFileName: "{queue.pc_file}"'
    yield '*Manufacturer: "QZ"'
    yield f'*Product: "({name})"'
    yield f'*ModelName: "{name}"'
    yield f'*ShortNickName: "{name}"'
    yield f'*NickName: "{name}, {VERSION}"'
    yield '*PSVersion: "(3010.000) 0"'
    yield '*LanguageLevel: "3"'
    yield "*ColorDevice: True"
    yield "*DefaultColorSpace: CMYK"
    yield "*FileSystem: False"
    yield '*Throughput: "35"'
    yield "*LandscapeOrientation: Plus90"
    yield "*TTRasterizer: Type42"
    if queue.attributes:
        yield ""
        yield "*% For the panel"
        for keyword, value in queue.attributes:
            yield f'*{keyword}: "{value}"'


def constraints(queue):
    if queue.constraints:
        yield ""
        yield "*% What excludes what, each in both directions"
    for remark, pairs in queue.constraints:
        yield f"*% {remark}"
        for first, second in pairs:
            yield f"*UIConstraints: {first} {second}"


def group(language, keyword, title, options):
    yield ""
    yield f"*OpenGroup: {keyword}/{language.say(title)}"
    for option in options:
        yield ""
        yield from ui(language.of(option))
    yield ""
    yield f"*CloseGroup: {keyword}"


def ui(option):
    place, section = option.order
    yield f"*OpenUI *{option.keyword}/{option.title}: {option.kind}"
    yield f"*OrderDependency: {place:g} {section} *{option.keyword}"
    yield f"*Default{option.keyword}: {option.default}"
    for keyword, label in option.choices:
        text = option.code.get(keyword, f"userdict /{option.keyword} ({keyword}) put")
        yield f'*{option.keyword} {keyword}/{label}: "{text}"'
    yield f"*CloseUI: *{option.keyword}"
    if option.typed:
        yield f'*Custom{option.keyword} True: "{option.typed_code}"'
        for parameter in option.typed:
            yield f"*ParamCustom{option.keyword} {parameter}"


def dimensions(language):
    """With a paper source in the job, libcups sends the page's size as *PageRegion or not at all."""
    yield ""
    yield "*RequiresPageRegion All: True"
    yield "*DefaultImageableArea: A4"
    for name, label, w, h in PAGES:
        yield (f"*ImageableArea {name}/{language.say(label)}: "
               f'"{MARGIN} {MARGIN} {w - MARGIN} {h - MARGIN}"')
    yield "*DefaultPaperDimension: A4"
    for name, label, w, h in PAGES:
        yield f'*PaperDimension {name}/{language.say(label)}: "{w} {h}"'


def fonts():
    yield ""
    yield "*DefaultFont: Courier"
    for name in FONTS:
        encoding = "Special" if name in ("Symbol", "ZapfDingbats") else "Standard"
        yield f'*Font {name}: {encoding} "(001.000)" {encoding} ROM'


def text(queue):
    language = queue.language
    yield from head(queue)
    yield from constraints(queue)
    yield from group(language, "General", "General", OFFICE_GENERAL if queue.office else GENERAL)
    yield from dimensions(language)
    if queue.office:
        yield "*VariablePaperSize: True"
        yield f'*MaxMediaWidth: "936"\n*MaxMediaHeight: "{LONGEST}"'
        yield f'*HWMargins: {" ".join([str(MARGIN)] * 4)}'
        yield from group(language, "VLJob", "Job", OFFICE_JOB)
    if queue.image:
        yield from group(language, "QZImage", "Image", queue.image)
        yield from group(language, "QZBalance", "Color Balance", queue.balance)
    yield from fonts()
    yield ""
    yield f"*% End of {queue.file}"


def write(queue, folder):
    lines = [line.encode(queue.language.codec) for line in text(queue)]
    longest = max(lines, key=len)
    assert len(longest) <= 255, f"{queue.file}: libcups refuses lines this long: {longest}"
    (folder / queue.file).write_bytes(b"\n".join(lines) + b"\n")


def main():
    if sys.argv[1:2] == ["--build"]:
        folder = Path(sys.argv[2])
        queues = built(folder)
    else:
        folder = Path(__file__).resolve().parent
        queues = KEPT
    for queue in queues:
        write(queue, folder)


if __name__ == "__main__":
    main()

#!/usr/bin/python3
"""The guides name everything that the user meets, in the words of the dialog, the prompts and the file."""
import re
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
import ezdxf  # noqa: E402
from arxhost import DEFAULTS, ROOT, Desk, need_built  # noqa: E402
from report import add, check, expect, expect_equal, run_all  # noqa: E402

SAMPLE = "(-1000000.0000,-1000000.0000)"  # makes room for the point that is shown there
PAGE = 760  # pixels that a page gives a picture
POINTS = 72 / 25.4  # in a millimetre
PROMPTS = 3  # of the command; a first line of each set of messages


def text_of(*path):
    return (ROOT.joinpath(*path)).read_text(encoding="utf-8-sig")


def guide(language):
    return text_of("docs", f"guide-{language}.md")


def words(caption):
    """A caption without the name of a button's picture, its colon and the blanks around it."""
    return caption.split("|")[-1].strip().rstrip(":")


def captions(language):
    template = text_of("resources", "netrax.rc")
    russian = [found for found in re.findall(r'^\s*(?:CAPTION|GROUPBOX|LTEXT|CONTROL)\s+"([^"]+)"', template, re.M)
               if found != SAMPLE]
    if language == "ru":
        return {words(caption) for caption in russian}
    sources = text_of("settings", "settingstexts.cpp")
    table = re.search(r"const Caption captions\[\] = \{(.*?)\};", sources, re.S)[1]
    kept = {caption for caption in russian if caption.isascii()}  # no other stands in their place
    title = re.search(r'englishTitle\(\)\s*\{\s*return L"([^"]+)"', sources)[1]
    return {words(caption) for caption in kept | {title} | set(re.findall(r'L"([^"]+)"', table))}


def named(language):
    """The words in bold, and the headings."""
    text = re.sub(r"`[^`]*`", "", guide(language))
    return set(re.findall(r"\*\*([^*]+)\*\*", text)), set(re.findall(r"^#+ (.*)$", text, re.M))


def banners(language):
    return re.findall(r'L"(<\w+ \w+>)"', text_of("settings", "settingstexts.cpp"))[2 * (language == "ru"):][:2]


def messages(language):
    found = re.findall(r'L"\\n([^"]+)"', text_of("command", "messages.cpp"))
    ours = found[:len(found) // 2] if language == "en" else found[len(found) // 2:]
    return [*ours[:PROMPTS], ours[-1]]


def keys():
    return set(re.findall(r'\{L"(\w+)",', text_of("settings", "options.cpp")))


def captions_are_named(language):
    expect(len(captions(language)) > 20, f"captions: {captions(language)}")
    bold, headings = named(language)
    expect_equal(captions(language) - bold - headings, set(), "captions that the guide does not name")


def nothing_else_is_printed_bold(language):
    expect_equal(named(language)[0] - captions(language), set(), "words that are no caption")


def prompts_are_quoted(language):
    texts = [*banners(language), *(message.strip() for message in messages(language))]
    expect_equal(len(texts), 6, "texts")
    expect_equal([text for text in texts if f"`{text}`" not in guide(language)], [], "texts that are not quoted")


def keys_are_listed_with_their_defaults(language):
    listed = {}
    for cells in re.findall(r"^\| (`.*)\|$", guide(language), re.M):
        names, default = [cell.strip() for cell in cells.split("|")[:2]]
        listed |= dict.fromkeys(re.findall(r"`(\w+)`", names), default)
    expect_equal(set(listed), keys(), "keys")
    wrong = {key: (value, DEFAULTS[key]) for key, value in listed.items()
             if value and float(value) != float(DEFAULTS[key]) or bool(value) != bool(DEFAULTS[key])}
    expect_equal(wrong, {}, "defaults")


def what_it_shows_is_there(language):
    shown = re.findall(r"\]\(([^)]+)\)", guide(language))
    expect_equal(len(shown), 4, "pictures")
    expect_equal([name for name in shown if not (ROOT / "docs" / name).is_file()], [], "pictures not there")


def named_colours_of_the_list_are_explained(language):
    named_ones = re.findall(r'\{\d+,\s*L"(By\w+)"\}', text_of("host", "dialogs", "colorcombo.cpp"))
    expect_equal(named_ones, ["ByLayer", "ByBlock"], "colours of the list that are no colour")
    expect_equal([name for name in named_ones if f"`{name}`" not in guide(language)], [], "not explained")


for rule in (captions_are_named, named_colours_of_the_list_are_explained, nothing_else_is_printed_bold, prompts_are_quoted,
             keys_are_listed_with_their_defaults, what_it_shows_is_there):
    for tongue in ("en", "ru"):
        add(f"{rule.__name__.replace('_', ' ')} in {tongue}", rule, tongue)


@check
def both_guides_have_the_same_parts():
    shape = [re.findall(r"^(#+|\d\.|- |!\[|\|)", guide(language), re.M) for language in ("en", "ru")]
    expect(len(shape[0]) > 40, f"only {len(shape[0])} parts")
    expect_equal(shape[1], shape[0], "headings, lists, pictures and tables")


@check
def the_pictures_are_what_the_command_draws():
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([ROOT / "scripts" / "guide-pictures", folder], check=True)
        drawn = sorted(Path(folder).iterdir())
        expect_equal(len(drawn), 3, "pictures")
        stale = [path.name for path in drawn if path.read_bytes() != (ROOT / "docs" / path.name).read_bytes()]
    expect_equal(stale, [], "pictures to be drawn again")


@check
def lines_of_the_pictures_are_seen_on_a_page():
    for picture in sorted((ROOT / "docs").glob("guide-*.svg")):
        text = picture.read_text(encoding="utf-8")
        pixels = PAGE / float(re.search(r'viewBox="0 0 ([\d.]+)', text)[1])
        # In millimetres: the pen stands under the scale of the sheet, points a millimetre.
        strokes = re.findall(r'stroke-width:([\d.]+);.*?stroke:rgb\(([\d.]+)%,([\d.]+)%,([\d.]+)%\)[^>]* d="([^"]+)"',
                             text)
        lines = sum(stroke[4].count("M ") for stroke in strokes)  # those that look alike share a shape
        expect(lines > 10, f"{picture.name}: {lines} lines")
        thinnest = min(float(stroke[0]) for stroke in strokes) * POINTS * pixels
        palest = max(sum(map(float, stroke[1:4])) for stroke in strokes)
        expect(thinnest >= 1, f"{picture.name}: a line of {thinnest:.2f} pixels")
        expect(palest <= 100, f"{picture.name}: a line as pale as {palest / 3:.0f} % of white")


# What they show is typed here as it stands, by an English and by a Russian user.

def examples_desk():
    """A folder with the example's files under the names that the texts use."""
    desk = Desk()
    examples = ROOT / "examples"
    (desk / "example").mkdir()
    for source, names in (("site.dxf", ["site.dxf", "example/site.dxf"]), ("lines.ini", ["example/options.ini"]),
                          ("answers.txt", ["answers.txt", "example/answers.txt"])):
        for name in names:
            desk.bring(examples / source, name)
    return desk


def blocks(*path):
    """The indented blocks of a text, blank lines within them kept."""
    found = re.findall(r"^(?: {4}.*\n)(?:\n?    .*\n)*", text_of(*path), re.M)
    return [re.sub(r"^    ", "", block, flags=re.M) for block in found]


def commands(*path):
    """The lines that run arxhost, as arguments; in Windows' text the folders are told by backslashes."""
    lines = [line for block in blocks(*path) for line in block.splitlines()]
    starts = ("arxhost ", "scripts/run ")
    return [line.replace("\\", "/").split()[1:] for line in lines if line.startswith(starts)]


def expect_one_grid(drawing, what):
    groups = [[member.dxftype() for member in group] for _, group in ezdxf.readfile(drawing).groups]
    expect_equal(len(groups), 1, f"groups of {what}")
    expect(groups[0].count("LINE") > 20, f"{what}: {len(groups[0])} members")


def run_as(desk, locale, *arguments, script=None):
    run = desk.run(*arguments, *([] if "--locale" in arguments else ["--locale", locale]), script=script)
    expect_equal((run.status, run.errors), (0, ""), f"{arguments} for {locale}")
    return run


def commands_draw_a_grid(locale, path):
    found = commands(*path.split("/"))
    expect(found, f"no command in {path}")
    for arguments in found:
        with examples_desk() as desk:
            run_as(desk, locale, *arguments)
            results = {name: desk / arguments[arguments.index(name) + 1] for name in ("--save", "--plot")}
            expect_one_grid(results["--save"], path)
            expect(results["--plot"].stat().st_size > 10000, f"{path}: the plot")


def scripts_draw_a_grid(locale):
    scripts = [block for path in ("README.md", "docs/arxhost.md") for block in blocks(*path.split("/"))
               if "zv_netrax" in block]
    expect_equal(len(scripts), 3, "scripts in README.md and docs/arxhost.md")
    for script, name in zip(scripts, ("whole.txt", "whole.txt", "whole.scr")):
        with examples_desk() as desk:
            (desk / name).write_text(script)
            run_as(desk, locale, "site.dxf", "--script", name, "--save", "out.dxf")
            expect_one_grid(desk / "out.dxf", name)


def lines_for_the_dialog_do_the_same_in_every_run(locale):
    text = " ".join(text_of("docs", "arxhost.md").split())
    part = text[text.index("the dialog is worked by lines"):text.index("After a click on a pick")]
    lines = [line for line in re.findall(r"`([a-z]+ \d+[^`]*)`", part) if line not in ("click 1", "click 2")]
    expect_equal(sorted({line.split()[0] for line in lines}), ["check", "click", "color", "select", "set"], "kinds of lines")
    settings = "Н" if locale == "ru-RU" else "S"
    script = "\n".join(["zv_netrax", settings, *(line + ("\n30" if line.startswith("click") else "") for line in lines),
                        "click 1", "0,0", "250,250", "", ""])
    with Desk() as desk:
        for run in ("first", "second"):
            run_as(desk, locale, script=script)
            kept = (desk / "properties.ini").read_text()
            wrong = [wanted for wanted in ("needText=1", "VertStep=30.0000", "iCountSigns=2", "Color=3")
                     if f"\n{wanted}\n" not in kept]
            expect_equal(wrong, [], f"options that the {run} run has not left")


for locale in ("en-US", "ru-RU"):
    for text in ("README.md", "docs/arxhost.md", "docs/guide-en.md", "docs/guide-ru.md", "packaging/README.txt"):
        add(f"the commands of {text} draw a grid for {locale}", commands_draw_a_grid, locale, text)
    add(f"the scripts of README.md and docs/arxhost.md draw a grid for {locale}", scripts_draw_a_grid, locale)
    add(f"lines for the dialog do the same in every run for {locale}", lines_for_the_dialog_do_the_same_in_every_run, locale)


if __name__ == "__main__":
    need_built()
    run_all()

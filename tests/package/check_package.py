#!/usr/bin/python3
"""Checks what scripts/package puts together, with stand-ins for what is built for Windows."""
import functools
import re
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path
from xml.etree import ElementTree

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from arxhost import ROOT  # noqa: E402
from report import add, check, expect, expect_equal, run_all  # noqa: E402

MANIFEST = ROOT / "packaging" / "PackageContents.xml"
PAGES = ["guide-crosses.svg", "guide-en.html", "guide-lines.svg", "guide-ru.html", "guide-turned.svg",
         "settings-en.png", "settings-ru.png"]
ARCHIVE = ["LICENSE.txt", "README.txt", "arxhost.exe", "arxhost_core.dll", "example/answers.txt",
           "example/options.ini", "example/site.dxf", *PAGES, "libwinpthread-1.dll",
           *(f"licences/{name}.txt" for name in ("CLI11", "GCC", "GPL-3", "MinGW-w64")), "netrax.arx"]
BUNDLE = ["PackageContents.xml", *(f"Contents/Help/{name}" for name in PAGES)]
# A change of the manifest that AutoCAD would not forgive, and what of it the schema names.
MISTAKES = [
    (r' ProductCode="[^"]*"', "", "ProductCode"),
    (r'UpgradeCode="\{', 'UpgradeCode="', "UpgradeCode"),
    (r' SeriesMax="[^"]*"', "", "SeriesMax"),
    (r'SchemaVersion="1.0"', 'SchemaVersion="2.0"', "SchemaVersion"),
    (r"\./Contents/netrax", r".\\Contents\\netrax", "ModuleName"),
    (r"<Commands.*</Commands>", "", "ComponentEntry"),
    (r' AppName="[^"]*"', "", "AppName"),
]


@functools.cache
def stand_in(name):
    """A library of Windows with a name in its code and more in its debug information."""
    source = f'.globl f\nf: .ascii "stand-in for {name}"\n.section .debug_info,"dr"\n.ascii "for the debugger"\n'
    with tempfile.TemporaryDirectory() as folder:
        made, library = Path(folder) / "made.o", Path(folder) / "made.dll"
        subprocess.run(["x86_64-w64-mingw32-as", "-o", made], input=source, text=True, check=True)
        subprocess.run(["x86_64-w64-mingw32-ld", "-shared", "-o", library, made], check=True)
        return library.read_bytes()


class Packing:
    """A folder that holds a build for Windows, and what became of packing it."""

    def __init__(self, *arguments, without=(), broken=None):
        self._folder = tempfile.TemporaryDirectory()
        self.folder = Path(self._folder.name)
        self.out = self.folder / "out"
        build = self.folder / "build"
        build.mkdir()
        for name in {"arxhost.exe", "arxhost_core.dll", "libwinpthread-1.dll", "netrax.arx",
                     "properties.ini", "build.ninja"} - {*without}:
            (build / name).write_bytes(stand_in(name))
        if broken:
            (build / broken).write_bytes(b"no program")
        self.module = self.folder / "module.arx"
        self.module.write_bytes(b"MZ of another maker")
        self.for_arxhost = self.folder / "other.arx"
        self.for_arxhost.write_bytes(b"MZ\0arxhost_core.dll\0")
        given = [str(getattr(self, name[1:])) if name.startswith("@") else name for name in arguments]
        done = subprocess.run([ROOT / "scripts" / "package", "--build", build, "--out", self.out, *given],
                              cwd="/", capture_output=True, text=True, check=False)
        self.status, self.said, self.errors = done.returncode, done.stdout, done.stderr

    def archive(self):
        with zipfile.ZipFile(self.out / "netrax-windows.zip") as archive:
            return {entry.filename: archive.read(entry) for entry in archive.infolist()}

    def bundle(self):
        root = self.out / "netrax.bundle"
        return {str(path.relative_to(root)): path.read_bytes() for path in root.rglob("*") if path.is_file()}


def validated(path):
    schema = ROOT / "packaging" / "PackageContents.xsd"
    return subprocess.run(["xmllint", "--noout", "--schema", schema, path], capture_output=True, text=True,
                          check=False)


@check
def the_manifest_follows_the_format_of_bundles():
    done = validated(MANIFEST)
    expect_equal(done.returncode, 0, done.stderr)


def the_schema_notices(pattern, replacement, named):
    text, changes = re.subn(pattern, replacement, MANIFEST.read_text(encoding="utf-8"), flags=re.S)
    expect(changes > 0, "the manifest has no such place")
    with tempfile.NamedTemporaryFile("w", suffix=".xml", encoding="utf-8") as file:
        file.write(text)
        file.flush()
        done = validated(file.name)
    expect(done.returncode != 0 and named in done.stderr, f"passed: {done.stderr}")


for mistake in MISTAKES:
    add(f"a manifest with a wrong {mistake[2]} is refused", the_schema_notices, *mistake)


@check
def the_manifest_names_what_the_module_registers():
    entry = ElementTree.parse(MANIFEST).getroot().find("Components/ComponentEntry")
    sources = (ROOT / "app" / "tables.cpp").read_text()
    group, name, local = re.search(r'L"(\w+)",\s*L"(\w+)",\s*L"(\w+)"', sources).groups()
    commands = [dict(command.attrib) for command in entry.iter("Command")]
    expect_equal(entry.find("Commands").get("GroupName"), group, "group")
    expect_equal([(one["Global"], one["Local"]) for one in commands], [(name, local)], "commands")


@check
def every_place_tells_the_same_version():
    version = re.search(r"project\(netrax VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text())[1]
    root = ElementTree.parse(MANIFEST).getroot()
    resources = "".join((ROOT / path).read_text(encoding="utf-8")
                        for path in ("resources/netrax.rc", "host/program/console/arxhost.rc"))
    places = {root.get("AppVersion"), root.find("Components/ComponentEntry").get("Version"),
              re.search(r"project\(\w+ VERSION ([\d.]+)", (ROOT / "cmake/objectarx/CMakeLists.txt").read_text())[1],
              *(found.removesuffix(".0") for found in re.findall(r'Version", "([\d.]+)"', resources))}
    expect_equal(places, {version}, "versions")


@check
def the_bundle_holds_the_module_the_manifest_and_the_help():
    packing = Packing("--module", "@module")
    expect_equal((packing.status, packing.errors), (0, ""), "result")
    files = packing.bundle()
    expect_equal(sorted(files), sorted([*BUNDLE, "Contents/netrax.arx"]), "files")
    expect_equal(files["Contents/netrax.arx"], b"MZ of another maker", "module")
    expect("lacks" not in packing.said, packing.said)


@check
def the_manifest_names_files_of_the_bundle():
    files = Packing("--module", "@module").bundle()
    named = re.findall(r'"\./([^"]+)"', files["PackageContents.xml"].decode())
    expect_equal(len(named), 3, "files named")
    expect_equal([name for name in named if name not in files], [], "files that are not there")
    topic = re.search(r'HelpTopic="(\w+)"', files["PackageContents.xml"].decode())[1]
    for language in ("en", "ru"):
        expect(f'id="{topic}"'.encode() in files[f"Contents/Help/guide-{language}.html"], language)


@check
def the_pages_show_the_pictures_that_come_with_them():
    files = Packing().bundle()
    for language in ("en", "ru"):
        page = files[f"Contents/Help/guide-{language}.html"].decode()
        expect(f'lang="{language}"' in page and "<table>" in page, "the page is not whole")
        shown = re.findall(r'src="([^"]+)"', page)
        expect_equal(len(shown), 4, "pictures")
        expect_equal([name for name in shown if f"Contents/Help/{name}" not in files], [], "pictures not there")


@check
def a_bundle_without_its_module_says_so():
    if (ROOT / "build-objectarx" / "Release" / "netrax.arx").exists():
        return  # a machine with Visual C++: the usual module is found
    packing = Packing()
    expect_equal((packing.status, packing.errors), (0, ""), "result")
    expect_equal(sorted(packing.bundle()), sorted(BUNDLE), "files")
    expect("the bundle lacks its module" in packing.said, packing.said)


@check
def the_module_of_arxhost_is_kept_out_of_the_bundle():
    packing = Packing("--module", "@for_arxhost")
    wanted = f"package: {packing.for_arxhost} is made for arxhost: AutoCAD needs the one that cmake/objectarx makes\n"
    expect_equal((packing.status, packing.said, packing.errors), (1, "", wanted), "result")
    expect(not packing.out.exists(), "something was packed all the same")


@check
def the_archive_holds_the_program_and_an_example():
    packing = Packing()
    files = packing.archive()
    expect_equal(sorted(files), sorted(f"netrax-windows/{name}" for name in ARCHIVE), "files")
    expect(b"stand-in for netrax.arx" in files["netrax-windows/netrax.arx"], "another module")
    expect_equal(files["netrax-windows/example/site.dxf"], (ROOT / "examples/site.dxf").read_bytes(), "example")


@check
def programs_and_libraries_are_packed_without_what_only_a_debugger_reads():
    files = Packing().archive()
    for name in ("arxhost.exe", "arxhost_core.dll", "libwinpthread-1.dll", "netrax.arx"):
        content = files[f"netrax-windows/{name}"]
        expect(b"for the debugger" in stand_in(name), f"the stand-in for {name} has no debug information")
        expect(f"stand-in for {name}".encode() in content, f"{name} is not what was built")
        expect(b"for the debugger" not in content, f"{name} has its debug information")


@check
def a_file_that_is_no_program_is_not_packed():
    packing = Packing(broken="netrax.arx")
    wanted = f"package: {packing.folder}/build/netrax.arx is no program or library of Windows\n"
    expect_equal((packing.status, packing.said, packing.errors), (1, "", wanted), "result")


@check
def the_readme_promises_no_bundle():
    for name, text in Packing().archive().items():
        expect(not name.endswith("README.txt") or b"bundle" not in text, "a bundle that is not in the archive")


@check
def texts_are_written_for_notepad():
    files = Packing().archive()
    for name in ("README.txt", "LICENSE.txt"):
        text = files[f"netrax-windows/{name}"]
        expect(text.startswith(b"\xef\xbb\xbf"), f"{name} has no byte-order mark")
        expect_equal(text.count(b"\n"), text.count(b"\r\n"), f"line ends of {name}")


@check
def the_readme_names_only_files_that_are_there():
    files = Packing().archive()
    text = files["netrax-windows/README.txt"].decode("utf-8-sig")
    named = {name.replace("\\", "/") for name in re.findall(r"[\w\\.-]+\.(?:exe|txt|html|dxf|ini)\b", text)}
    made = {"properties.ini", "grid.dxf"}
    expect(len(named) > 7, f"names: {named}")
    expect_equal({name for name in named - made if f"netrax-windows/{name}" not in files}, set(), "not there")


@check
def the_same_files_make_the_same_archive():
    first, second = Packing(), Packing()
    archives = [(packing.out / "netrax-windows.zip").read_bytes() for packing in (first, second)]
    expect(archives[0] == archives[1], "two runs differ")
    with zipfile.ZipFile(first.out / "netrax-windows.zip") as archive:
        entries = archive.infolist()
    expect_equal({entry.date_time for entry in entries}, {(1980, 1, 1, 0, 0, 0)}, "times")
    names = [entry.filename for entry in entries]
    expect_equal(names, sorted(names), "order")


def what_is_missing_is_named(name):
    packing = Packing(without=[name])
    wanted = f"package: {packing.folder}/build/{name} is missing\n"
    expect_equal((packing.status, packing.said, packing.errors), (1, "", wanted), "result")


for missing in ("arxhost.exe", "arxhost_core.dll", "netrax.arx"):
    add(f"a missing {missing} is named", what_is_missing_is_named, missing)


if __name__ == "__main__":
    run_all()

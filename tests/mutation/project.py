"""How the library is built: the build's own commands, with clang, without optimisation, and with
the headers that no mutant changes read in advance. That makes a mutant a matter of a second."""

import concurrent.futures
import hashlib
import json
import pathlib
import re
import shlex
import subprocess
import sys

COMPILER = "clang++-14"
# Of the build's own: what its compiler alone knows, what costs time, and names of files.
LEFT_OUT = re.compile(r"-[OgW].*|-Winvalid-pch|-MD")
COVERAGE = ["-gline-tables-only", "-fsanitize-coverage=trace-pc-guard,pc-table,no-prune"]
OPTIMISED = ["-O2"]
PLAIN = []
QUICK = ["-w", "-O0"]
PREAMBLE = """
namespace mutation {
template <class T> struct Bare { using Type = T; };
template <class T> struct Bare<T&> { using Type = T; };
template <class T> struct Bare<T&&> { using Type = T; };
template <class T> struct Bare<const T> { using Type = T; };
template <class T> struct Bare<const T&> { using Type = T; };
template <class T> using Nothing = typename Bare<T>::Type;  // what an argument left out would be
}
"""


class Project:
    """One library of a build folder, and the folder of sources in which mutants are made."""

    def __init__(self, build, library, subject, jobs):
        self.root = pathlib.Path(__file__).resolve().parents[2]
        self.build = build.resolve()
        self.library = library.resolve()
        self.subject = self.root / subject
        self.jobs = jobs
        self.work = self.build / "mutation" / self.library.stem
        self.work.mkdir(parents=True, exist_ok=True)
        self.objects, self.link_words = self.link_command()
        self.sources, self.flags = self.compile_commands()
        self.stamp = ""  # of the headers from elsewhere
        self.header_object = self.work / "outside.o"

    def link_command(self):
        name = str(self.library.relative_to(self.build))
        listing = subprocess.run(["ninja", "-C", self.build, "-t", "commands", name], check=True,
                                 text=True, capture_output=True).stdout
        words = shlex.split(listing.splitlines()[-1])
        objects = [word for word in words if word.endswith(".o")]
        libraries = [word for word in words if not word.startswith("-") and word != name
                     and word.endswith((".a", ".so"))]
        kept = [word for word in words if word.startswith("-Wl,--version-script")] + libraries
        return objects, kept

    def compile_commands(self):
        """{source: its object in the build} and the flags, which all of them share."""
        sources, flags = {}, None
        for entry in json.loads((self.build / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            output = words[words.index("-o") + 1]
            if output not in self.objects:
                continue
            if "-include" in words:  # what the build has precompiled
                at = words.index("-include")
                del words[at:at + 2]
            at = words.index("-o")
            kept = [word for word in words[1:at] if not LEFT_OUT.fullmatch(word)]
            if flags not in (None, kept):
                sys.exit(f"{entry['file']} is not compiled as the others are")
            flags = kept
            sources[pathlib.Path(entry["file"])] = output
        if not sources:
            sys.exit(f"{self.build} does not say how {self.library} is compiled")
        return sources, flags

    # Headers read in advance

    def precompile(self):
        own = f'"{self.subject.relative_to(self.root)}/'
        names = set()
        for file in self.files(self.subject):
            names |= set(re.findall(r"^#include (.*)$", file.read_text(), re.MULTILINE))
        outside = sorted(name for name in names if not name.startswith(own))
        header = self.work / "outside.h"
        header.write_text("".join(f"#include {name}\n" for name in outside) + PREAMBLE)
        folders = {name[1:].split("/")[0] for name in outside if name.startswith('"')}
        headers = [file for folder in sorted(folders) for file in self.files(self.root / folder)]
        words = [COMPILER, *self.flags, *QUICK, *COVERAGE, *OPTIMISED]
        self.stamp = fingerprint([header, *headers], words)
        self.unless_current("precompiled", self.stamp, self.precompile_headers)

    def precompile_headers(self):
        """What they hold themselves is compiled here, too, and not again with every mutant."""
        header = self.work / "outside.h"

        def make(options):
            once = ["-fpch-codegen"] if options == PLAIN else []
            output = self.header(options)
            run([COMPILER, *self.flags, *QUICK, "-Xclang", "-fno-pch-timestamp",
                 "-fpch-instantiate-templates", *once, *options,
                 "-x", "c++-header", header, "-o", output])
            if once:
                run([COMPILER, "-fPIC", *QUICK, "-c", output, "-o", self.header_object])

        with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
            list(pool.map(make, (PLAIN, COVERAGE, OPTIMISED)))

    def unless_current(self, name, stamp, make):
        """Makes it unless it has been made with this stamp."""
        file = self.work / f"{name}.stamp"
        if file.exists() and file.read_text() == stamp:
            return
        make()
        file.write_text(stamp)

    @staticmethod
    def files(folder):
        return sorted(file for file in folder.rglob("*") if file.suffix in (".h", ".cpp", ".def"))

    def header(self, options):
        names = ((PLAIN, "plain"), (COVERAGE, "covered"), (OPTIMISED, "optimised"))
        return self.work / next(f"{name}.pch" for kind, name in names if kind == options)

    def parse_arguments(self):
        return [*self.flags, "-w", "-include-pch", str(self.header(PLAIN))]

    # Objects and libraries

    def compile(self, source, output, replaced=None, options=PLAIN):
        """The compiler's run. `replaced` is a virtual file system in which one file is another."""
        words = [COMPILER, *self.flags, *QUICK, *options, "-include-pch", self.header(options)]
        if replaced:
            words += ["-ivfsoverlay", replaced]
        return subprocess.run([*words, "-c", source, "-o", output], text=True, capture_output=True)

    def emitters(self, objects):
        """{symbol: the sources whose objects hold it}, for what is not held by one alone."""
        found = {}
        for source, one in objects.items():
            for line in run(["nm", "--defined-only", one]).stdout.splitlines():
                kind, symbol = line.split()[-2:]
                if kind in "WV":
                    found.setdefault(symbol, []).append(source)
        return found

    def object_name(self, source):
        return "-".join(source.relative_to(self.root).with_suffix(".o").parts)

    def build_all(self, name, options=PLAIN):
        """Every source as it is; the objects, by source, in the folder of this name."""
        objects = {source: self.work / name / self.object_name(source) for source in self.sources}
        (self.work / name).mkdir(exist_ok=True)

        def make():
            def compile_one(pair):
                return self.compile(*pair, options=options)

            with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
                for done in pool.map(compile_one, objects.items()):
                    if done.returncode != 0:
                        sys.exit(done.stderr)

        self.unless_current(name, self.texts(), make)
        return objects

    def link(self, objects, library):
        words = [COMPILER, "-shared", "-fuse-ld=lld", *objects, *self.link_archives()]
        return subprocess.run([*words, "-o", library], text=True, capture_output=True)

    def link_archives(self):
        return [word if word.startswith("-") else str(self.build / word) for word in self.link_words]

    def texts(self):
        """A hash of all that a library is made from."""
        return fingerprint(self.files(self.subject), [self.stamp, *map(str, self.sources)])


def fingerprint(files, words=()):
    digest = hashlib.sha256("\0".join(words).encode())
    for file in files:
        content = file.read_bytes() if file and file.is_file() else b""
        digest.update(b"%d\0" % len(content) + content)
    return digest.hexdigest()


def run(words):
    done = subprocess.run(words, text=True, capture_output=True)
    if done.returncode != 0:
        sys.exit(f"{shlex.join(map(str, words))}\n{done.stdout}{done.stderr}")
    return done

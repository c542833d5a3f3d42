#!/usr/bin/env python3
"""What the bridge adds to an extension for each thing that is written with it, in bytes.

usage: bench/size.py [DEVICE_BUILD [SIMULATOR_BUILD]]     by default build/device and build/dev

Each figure is the difference between two objects, divided by how many more of the thing one of them
has: code, constants and variables together, compiled as the extension is for that home. In the
simulator each message and method also has its types compared, which is most of it there.
"""

import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

FEW, MANY = 20, 220
HOMES = {"arm64": "dozewell-arm64.dir", "arm64e": "dozewell-arm64e.dir", "simulator": "Dozewell2.dir"}
COUNTED = re.compile(r"(__text|__const|__cstring|__literal\w*|__data|__bss|__common)$"
                     r"|\.(text|rodata|data|bss)\b")

START = """
#include "objc/Class.h"
#include "objc/Hook.h"
struct Many : objc::Implementation<Many> {
  template <int> long plain(long value) { return value; }
};
"""
SEND = "void all([[maybe_unused]] id one) {%s}"
BUILD = 'void all() { objc::ClassBuilder<Many>("Many", "NSObject")%s.finish(); }'
HOOKED = """
template <int>
long hooked(objc::Original<long(objc::Object, long)> original, objc::Object self, long value) {
  return original(self, value);
}
void all() {%s}
"""
# What, what surrounds it, how it is written the n-th time.
THINGS = [
    ("message, selector and types used before", SEND, 'objc::send<void, "known:">(one, {n}L);'),
    ("message, new selector of 12 letters", SEND, 'objc::send<void, "selector{n:03}:">(one, 1L);'),
    ("message to a new class of 12 letters", SEND,
     'objc::send<void, "known:">(objc::classNamed<"ClassName{n:03}">(), 1L);'),
    ("method, new selector of 12 letters", BUILD,
     '.method<"selector{n:03}:", &Many::plain<{n}>>()'),
    ("hook, new selector of 12 letters", HOOKED,
     'objc::hook<"Host", "selector{n:03}:", hooked<{n}>>();'),
]


def command(build, target):
    """The compiler's words for one of the extension's sources, without what names files."""
    for entry in json.loads((build / "compile_commands.json").read_text()):
        words = shlex.split(entry["command"])
        output = words[words.index("-o") + 1]
        if f"/{target}/" in output and entry["file"].endswith("/Startup.cpp"):
            return [word for word in words[:words.index("-o")] if word != "-g1"]
    sys.exit(f"{build} does not compile the extension: build it first")


def size(words, text, folder):
    source, output = folder / "Many.cpp", folder / "Many.o"
    source.write_text(text)
    subprocess.run([*words, "-o", output, "-c", source], check=True)
    listing = subprocess.run(["llvm-size-19", "-A", output], check=True, text=True,
                             capture_output=True).stdout
    rows = (line.split() for line in listing.splitlines())
    return sum(int(row[1]) for row in rows if len(row) == 3 and COUNTED.match(row[0]))


def each(words, surroundings, thing, folder):
    def sized(count):
        body = "\n".join(thing.replace("{n:03}", f"{n:03}").replace("{n}", str(n))
                         for n in range(count))
        return size(words, START + surroundings % body, folder)

    return (sized(MANY) - sized(FEW)) / (MANY - FEW)


def main():
    if len(sys.argv) > 3 or sys.argv[1:2] in (["-h"], ["--help"]):
        print(__doc__, file=sys.stderr)
        return 2
    builds = [pathlib.Path(word) for word in sys.argv[1:]]
    device = builds[0] if builds else pathlib.Path("build/device")
    simulator = builds[1] if len(builds) > 1 else pathlib.Path("build/dev")
    homes = {home: command(simulator if home == "simulator" else device, target)
             for home, target in HOMES.items()}
    print(f"{'bytes for each':42}" + "".join(f"{home:>12}" for home in homes))
    with tempfile.TemporaryDirectory() as folder:
        for name, surroundings, thing in THINGS:
            sizes = [each(words, surroundings, thing, pathlib.Path(folder))
                     for words in homes.values()]
            print(f"{name:42}" + "".join(f"{bytes_each:12.1f}" for bytes_each in sizes), flush=True)
    return 0


sys.exit(main())

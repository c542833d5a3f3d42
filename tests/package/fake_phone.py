#!/usr/bin/env python3
"""What a package manager finds on a root-less phone, below a folder of this machine; the manager is
this machine's dpkg.

    fake_phone.py FOLDER FILE.deb     makes one in place of FOLDER, and installs the package
"""

import os
import pathlib
import shutil
import subprocess
import sys
from dataclasses import dataclass

ARCHITECTURE = "iphoneos-arm64"
# Where the prefix really lies. Links are relative: dpkg follows them on the machine it runs on.
PREFIX = "private/preboot/0123456789ABCDEF/jb-sample/procursus"
DPKG = "var/jb/var/lib/dpkg"
LIBRARY = "/var/jb/Library"


@dataclass(frozen=True)
class Provided:
    """A package that is there. dpkg keeps a folder, or a link to one, as long as a package has it."""

    name: str
    version: str
    provides: str = ""
    folders: tuple = ()


# What is there on an ordinary phone of iOS 15.
PROVIDED = (
    Provided("firmware", "15.4.1", folders=("/.", "/var", "/var/jb", LIBRARY)),
    Provided("ellekit", "1.1.3", "mobilesubstrate (= 99)",
             (f"{LIBRARY}/MobileSubstrate", f"{LIBRARY}/MobileSubstrate/DynamicLibraries")),
    Provided("ws.hbang.common", "2.0"),
    Provided("preferenceloader", "2.2.6-1",
             folders=(f"{LIBRARY}/PreferenceLoader", f"{LIBRARY}/PreferenceLoader/Preferences")),
)


class FakePhone:
    def __init__(self, root, provided=PROVIDED):
        self.root = pathlib.Path(root)
        prefix = self.root / PREFIX
        for folder in ("usr/lib/TweakInject", "Library/MobileSubstrate", "var/lib/dpkg/info", "var/lib/dpkg/updates",
                       "Library/PreferenceLoader/Preferences", "var/mobile/Library/Preferences"):
            (prefix / folder).mkdir(parents=True)
        (self.root / "var").mkdir()
        (self.root / "var/jb").symlink_to(pathlib.Path("..") / PREFIX)
        (prefix / "Library/MobileSubstrate/DynamicLibraries").symlink_to("../../usr/lib/TweakInject")
        (self.root / DPKG / "status").write_text("".join(map(_record, provided)), encoding="utf-8")
        (self.root / DPKG / "arch").write_text(f"{ARCHITECTURE}\n", encoding="utf-8")
        for package in provided:
            listed = "".join(f"{folder}\n" for folder in package.folders)
            (self.root / DPKG / f"info/{package.name}.list").write_text(listed, encoding="utf-8")

    def dpkg(self, *words):
        """Nothing outside the phone is read or written: neither records, nor triggers, nor logs."""
        command = ["dpkg", f"--root={self.root}", f"--admindir={self.root / DPKG}", "--log=/dev/null",
                   "--no-triggers", "--no-debsig", *words]
        if os.geteuid() != 0:  # files of the package belong to root
            command[:1] = ["fakeroot", "dpkg", "--force-not-root"]
        # Messages in English, and the tools that dpkg wants although it needs none of them here.
        environment = {**os.environ, "LC_ALL": "C", "PATH": "/usr/sbin:/usr/bin:/sbin:/bin"}
        return subprocess.run(command, env=environment, capture_output=True, text=True, check=False)

    def files(self):
        """Everything but dpkg's own records, by its path: what it is, where it leads, what is in it."""
        return {
            str(path.relative_to(self.root)): _state(path)
            for path in self.root.rglob("*")
            if "var/lib/dpkg" not in str(path)
        }


def _record(package):
    lines = [f"Package: {package.name}", "Status: install ok installed", f"Version: {package.version}",
             f"Architecture: {ARCHITECTURE}", "Maintainer: Nobody <nobody@example.org>"]
    if package.provides:
        lines.append(f"Provides: {package.provides}")
    return "\n".join([*lines, "Description: a stand-in", "", ""])


def _state(path):
    if path.is_symlink():
        return "link", os.readlink(path)
    return ("folder", "") if path.is_dir() else ("file", path.read_bytes())


def main():
    folder, package = sys.argv[1:]
    shutil.rmtree(folder, ignore_errors=True)
    outcome = FakePhone(folder).dpkg("--install", package)
    print(outcome.stdout, outcome.stderr, sep="")
    sys.exit(outcome.returncode)


if __name__ == "__main__":
    main()

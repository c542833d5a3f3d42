"""The same sources give the same package, wherever and whenever it is made."""

import os
import pathlib
import subprocess
import sys

from case import CONTROL, GOOD, PackageCase

FILES = os.environ["FILES"].split(":")
PHONE_DIR = os.environ["PYTHONPATH"]


class Make(PackageCase):
    def make(self, files=None, control=CONTROL, umask=0o022, words=(), **variables):
        output = self.folder / "made.deb"
        environment = {name: value for name, value in os.environ.items() if name != "SOURCE_DATE_EPOCH"}
        outcome = subprocess.run(
            [sys.executable, "-B", "-m", "package.make", "--control", control, "--output", output, *words,
             *(files or FILES)],
            cwd=PHONE_DIR, env={**environment, **variables}, umask=umask, check=True, text=True,
            capture_output=True)
        self.said = outcome.stderr
        return output.read_bytes()

    def test_same_bytes_in_other_surroundings(self):
        usual = self.make(SOURCE_DATE_EPOCH="1700000000")
        strange = self.make(files=self.copied(), umask=0o077, SOURCE_DATE_EPOCH="1700000000", TZ="Asia/Kathmandu",
                            LC_ALL="tr_TR.UTF-8", PYTHONHASHSEED="7")
        self.assertEqual(usual, strange)

    def test_time_is_the_one_that_is_given(self):
        self.assertNotEqual(self.make(SOURCE_DATE_EPOCH="1700000000"), self.make(SOURCE_DATE_EPOCH="1700000001"))
        path = self.written_bytes(self.make(SOURCE_DATE_EPOCH="1700000000"))
        listed = subprocess.run(["dpkg-deb", "--contents", path], env={**os.environ, "TZ": "UTC"}, check=True,
                                text=True, capture_output=True).stdout
        self.assertEqual({line.split()[3] for line in listed.splitlines()}, {"2023-11-14"})
        self.passes("owners", path=path)

    def test_build_made_it_so(self):
        time = str(self.package.members[0].time)
        self.assertEqual(self.make(SOURCE_DATE_EPOCH=time), GOOD.read_bytes())
        self.passes("sources", *FILES, path=self.written_bytes(self.make()))

    def test_warns_of_placeholders(self):
        control = self.folder / "control"
        control.write_text("Maintainer: somebody\n", encoding="utf-8")
        file = self.folder / "file"
        file.write_bytes(b"\0ask at https://repo.example/\0")
        files = [f"/var/jb/file={file}"]
        words = ["--placeholder", "https://repo.example/", "--placeholder", "nobody"]
        self.make(files, control, words=words)
        self.assertEqual(self.said.count("warning: "), 1)
        self.assertIn("still names https://repo.example/", self.said)
        self.make(files, control, words=["--placeholder", "somebody"])
        self.assertIn("still names somebody", self.said)

    def copied(self):
        """The sources elsewhere: younger, written in the opposite order, for their owner alone."""
        copies = []
        for index, (path, source) in enumerate(pair.split("=", 1) for pair in FILES):
            source, target = pathlib.Path(source), self.folder / f"source-{index}"
            for file in sorted(source.rglob("*"), reverse=True) if source.is_dir() else [source]:
                if file.is_file():
                    copy = target / file.relative_to(source)
                    copy.parent.mkdir(parents=True, exist_ok=True)
                    copy.write_bytes(file.read_bytes())
                    copy.chmod(0o700)
            copies.append(f"{path}={target}")
        return copies

from case import CONTROL, PackageCase
from package import tar


class Control(PackageCase):
    def test_good_package_passes(self):
        self.passes("control", CONTROL)
        self.passes("control", CONTROL, path=self.written())

    def test_what_it_depends_on(self):
        depends = (b"Depends: firmware (>= 15.0), firmware (<< 16.0), mobilesubstrate (>= 0.9.5000), "
                   b"ws.hbang.common (>= 2.0), preferenceloader (>= 2.2.3)\n")
        self.assertIn(depends, self.entry("./control").data)

    def test_no_script_is_run_on_the_phone(self):
        for script in ("preinst", "postinst", "prerm", "postrm", "triggers", "conffiles"):
            with self.subTest(script):
                self.setUp()
                self.package.control.append(tar.file_entry(f"./{script}", b"#!/bin/sh\n", 0))
                self.fails(script, "control", CONTROL)

    def test_changed_fields(self):
        for old, new, name in (
            (b"iphoneos-arm64\n", b"iphoneos-arm\n", "Architecture"),
            (b"firmware (<< 16.0), ", b"", "Depends"),
            (b"Version: ", b"Version: 1", "Version"),
            (b"Tweaks", b"Games", "Section"),
            (b"Installed-Size: ", b"Installed-Size: 1", "Installed-Size"),
        ):
            with self.subTest(name):
                self.setUp()
                self.replace_in_control(old, new)
                self.fails(f"{name} is ", "control", CONTROL)

    def test_missing_and_extra_fields(self):
        self.replace_in_control(b"Author: ", b"Autor: ")
        self.fails("Author is None", "control", CONTROL)
        self.fails("Autor is 'The", "control", CONTROL)

    def test_size_that_grew(self):
        self.package.data[-1].data += bytes(1024)
        self.fails("Installed-Size is ", "control", CONTROL)

    def test_lines_that_are_no_fields(self):
        for line in (b"nonsense\n", b"\n", b"Package: again\n", b"Last: without an end"):
            with self.subTest(line):
                self.setUp()
                self.entry("./control").data += line
                self.fails("control: ", "control", CONTROL)

    def test_text_of_another_encoding(self):
        self.replace_in_control(b"Author: ", b"Author: \xff")
        self.fails("can't decode byte 0xff", "control", CONTROL)

    def test_name_of_the_file(self):
        self.fails("the file's name is not com.corvane.dozewell2_", "control", CONTROL,
                   path=self.written("other.deb"))

    def test_values_that_no_template_should_have(self):
        for old, new, complaint in (
            (b"Maintainer: ", b"Maintainer: <>", "Maintainer is no NAME <ADDRESS>"),
            (b"Description: ", b"Description: " + b"long " * 20, "more than 80 letters"),
        ):
            with self.subTest(complaint):
                self.setUp()
                self.replace_in_control(old, new)
                self.fails(complaint, "control", self.template())

    def test_description_without_explanation(self):
        entry = self.entry("./control")
        entry.data = b"".join(line for line in entry.data.splitlines(True) if not line.startswith(b" "))
        self.fails("Description needs", "control", self.template())

    def template(self):
        """One that says what the package says."""
        path = self.folder / "control"
        path.write_bytes(self.entry("./control").data)
        return path

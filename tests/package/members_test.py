import os
import tarfile

from case import APPLICATION_SUPPORT, BUNDLE, INJECTED, PackageCase
from package import tar

LIST = os.environ["MEMBERS"]


class Members(PackageCase):
    def test_good_package_passes(self):
        self.passes("members", LIST)
        self.passes("owners")
        self.passes("owners", path=self.written())

    def test_each_file_that_is_missing(self):
        files = [entry for entry in self.package.data if entry.info.isreg()]
        self.assertGreater(len(files), 70)
        for entry in files[::10]:
            with self.subTest(entry.name):
                self.setUp()
                self.package.data.remove(self.entry(entry.name))
                self.fails(f"{entry.name[1:]} is not in it", "members", LIST)

    def test_missing_folder(self):
        self.package.data.remove(self.entry(BUNDLE))
        self.fails(f"{BUNDLE[1:]} is not in it", "members", LIST)

    def test_files_that_are_not_listed(self):
        for name in (f"{BUNDLE}/.DS_Store", "./etc/passwd", "../escape", "/absolute"):
            with self.subTest(name):
                self.setUp()
                self.package.data.append(tar.file_entry(name, b"", 0))
                self.fails(f"{name[1:] if name.startswith('./') else name} is in it", "members", LIST)

    def test_links(self):
        for kind in (tarfile.SYMTYPE, tarfile.LNKTYPE):
            entry = self.entry(f"{BUNDLE}/Info.plist")
            entry.info.type, entry.info.linkname, entry.data = kind, "/etc/passwd", b""
            self.fails("Info.plist is in it, as a file or something else", "members", LIST)

    def test_order(self):
        # A folder must be there when its files come.
        folder = self.entry(APPLICATION_SUPPORT)
        self.package.data.remove(folder)
        self.package.data.append(folder)
        self.fails("the entries are not in order", "members", LIST)

    def test_file_that_comes_twice(self):
        self.package.data.append(self.package.data[-1])
        self.fails("an entry comes twice", "members", LIST)

    def test_owners_modes_and_times(self):
        for field, value in (("uid", 501), ("gid", 20), ("uname", "mobile"), ("gname", "wheel"),
                             ("mode", 0o755), ("mode", 0o600), ("mode", 0o4644), ("mtime", 7)):
            for name in (f"{INJECTED}/Dozewell2.dylib", "./control"):
                with self.subTest((field, value, name)):
                    self.setUp()
                    setattr(self.entry(name).info, field, value)
                    self.fails(name, "owners")

    def test_folder_that_nobody_may_enter(self):
        self.entry(BUNDLE).info.mode = 0o644
        self.fails(f"{BUNDLE} has mode 644, not 755", "owners")

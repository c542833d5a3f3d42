import gzip
import lzma

from case import GOOD, PackageCase
from package import ar, check, deb, tar


class Archive(PackageCase):
    def test_good_package_passes(self):
        self.passes("archive")
        self.passes("archive", path=self.written_bytes(deb.as_we_write(self.package)))

    def test_other_order(self):
        self.package.members.reverse()
        self.fails("the members are data.tar.xz, control.tar.gz", "archive")

    def test_missing_member(self):
        self.package.members.remove(self.member(deb.CONTROL))
        self.fails("there is no control.tar.gz", "archive", path=self.written_members())

    def test_one_member_too_many(self):
        self.package.members.append(ar.Member("_gpgorigin", b"", self.package.members[0].time))
        self.fails("_gpgorigin", "archive")

    def test_other_format_version(self):
        self.member(deb.FORMAT).data = b"3.0\n"
        self.fails("the format is [b'3.0\\n']", "archive")

    def test_compression_that_phones_do_not_know(self):
        self.member(deb.DATA).name = "data.tar.zst"
        self.fails("the members are", "archive", path=self.written_members())

    def test_compression_that_the_name_denies(self):
        packed = gzip.compress(tar.write(self.package.data))
        self.member(deb.DATA).data = packed
        self.fails("data.tar.xz begins with", "archive", path=self.written_members())

    def test_gzip_that_knows_the_hour(self):
        self.member(deb.CONTROL).data = gzip.compress(tar.write(self.package.control), mtime=1)
        self.fails("control.tar.gz begins with", "archive", path=self.written_members())

    def test_owner_and_mode_of_members(self):
        for field, value in (("owner", 501), ("group", 20), ("mode", 0o100600)):
            with self.subTest(field):
                self.setUp()
                setattr(self.member(deb.DATA), field, value)
                self.fails("data.tar.xz is of", "archive")

    def test_members_of_different_age(self):
        self.member(deb.DATA).time += 1
        self.fails("not equally old", "archive")

    def test_every_cut(self):
        whole = GOOD.read_bytes()
        for size in (0, 7, 40, 66, 80, 200, 1000, len(whole) // 2, len(whole) - 1):
            with self.subTest(size):
                failures = list(self.failures_of(whole[:size]))
                self.assertNotEqual(failures, [])

    def test_something_behind_the_end(self):
        self.fails("there is no header", "archive", path=self.written_bytes(GOOD.read_bytes() + b"x"))

    def test_damaged_streams(self):
        for name in (deb.CONTROL, deb.DATA):
            with self.subTest(name):
                self.setUp()
                member = self.member(name)
                middle = len(member.data) // 2
                member.data = member.data[:middle] + bytes([member.data[middle] ^ 1]) + member.data[middle + 1 :]
                self.fails(f"{name} cannot be unpacked", "archive", path=self.written_members())

    def test_no_archive_inside(self):
        self.member(deb.DATA).data = lzma.compress(b"x" * 600)
        self.fails("an archive cannot be read", "archive", path=self.written_members())

    def test_entries_that_one_reader_passes_over_and_another_installs(self):
        header = bytearray(tar.write([tar.file_entry("./postinst", b"", 0)])[:512])
        header[108:116] = b"000000 9"  # an owner that is no number
        header[148:156] = b" " * 8
        header[148:156] = b"%06o\0 " % sum(header)
        entries = tar.write(self.package.control).rstrip(b"\0")
        entries += bytes(-len(entries) % 512)
        self.member(deb.CONTROL).data = gzip.compress(entries + bytes(header) + bytes(1024), mtime=0)
        self.fails("it is not what is written", "archive", path=self.written_members())

    def test_two_streams_and_other_filters(self):
        whole = tar.write(self.package.data)
        filters = [{"id": lzma.FILTER_DELTA}, {"id": lzma.FILTER_LZMA2, "preset": 6}]
        for packed in (lzma.compress(whole[:512]) + lzma.compress(whole[512:]),
                       lzma.compress(whole, filters=filters), lzma.compress(whole, preset=9)):
            self.setUp()
            self.member(deb.DATA).data = packed
            self.fails("it is not what is written", "archive", path=self.written_members())

    def failures_of(self, data):
        return check.failures("archive", [self.written_bytes(data)])

"""The two archives inside a package. Names begin with "./" and, of folders, do not end with "/";
the archive's own folder is "."."""

import io
import tarfile
from dataclasses import dataclass

from package.error import PackageError

FILE_MODE = 0o644
FOLDER_MODE = 0o755


@dataclass
class Entry:
    info: tarfile.TarInfo
    data: bytes = b""

    @property
    def name(self):
        return self.info.name


def file_entry(name, data, time):
    return Entry(_info(name, tarfile.REGTYPE, FILE_MODE, time), data)


def folder_entry(name, time):
    return Entry(_info(name, tarfile.DIRTYPE, FOLDER_MODE, time))


def write(entries):
    buffer = io.BytesIO()
    # Extended headers of newer formats are unknown to the phones' dpkg.
    with tarfile.open(fileobj=buffer, mode="w", format=tarfile.GNU_FORMAT) as archive:
        for entry in entries:
            entry.info.size = len(entry.data)
            archive.addfile(entry.info, io.BytesIO(entry.data))
    return buffer.getvalue()


def read(data):
    try:
        with tarfile.open(fileobj=io.BytesIO(data), mode="r:") as archive:
            return [_read_entry(archive, info) for info in archive]
    except (tarfile.TarError, EOFError) as error:
        raise PackageError(f"an archive cannot be read: {error}") from error


def _info(name, kind, mode, time):
    info = tarfile.TarInfo(name)
    info.type, info.mode, info.mtime = kind, mode, time
    info.uname = info.gname = "root"
    return info


def _read_entry(archive, info):
    file = archive.extractfile(info) if info.isreg() else None
    return Entry(info, file.read() if file else b"")

"""The embedded code signature: its blobs, its code directory and the hashes of the pages."""

import hashlib
import struct

from macho.error import MachOError
from macho.image import LC_CODE_SIGNATURE

MAGIC_SUPERBLOB = 0xFADE0CC0
MAGIC_CODE_DIRECTORY = 0xFADE0C02
SLOT_CODE_DIRECTORY = 0
SLOT_CMS = 0x10000
FLAG_ADHOC = 0x2
HASH_SHA256 = 2
FLAGS_OFFSET = 12  # within the code directory


class CodeDirectory:
    """Raises MachOError when the image is not signed or the signature is malformed."""

    def __init__(self, image):
        commands = image.commands_of(LC_CODE_SIGNATURE)
        if not commands:
            raise MachOError("there is no code signature")
        self._data = image.data
        self._start, self._size = struct.unpack_from("<2I", commands[0].body)
        self.slots = dict(self._superblob())
        if SLOT_CODE_DIRECTORY not in self.slots:
            raise MachOError("the code signature has no code directory")
        self.offset = self._start + self.slots[SLOT_CODE_DIRECTORY]  # in the file
        self._read()

    @property
    def cms(self):
        """The bytes of the CMS signature, without the blob's header; None without one."""
        if SLOT_CMS not in self.slots:
            return None
        start = self._start + self.slots[SLOT_CMS]
        (length,) = struct.unpack_from(">I", self._data, start + 4)
        return self._data[start + 8 : start + length]

    def hash_offset(self, page):
        return self.offset + self._hashes + page * self._hash_size

    def stored_hash(self, page):
        start = self.hash_offset(page)
        return self._data[start : start + self._hash_size]

    def actual_hash(self, page, data=None):
        """The hash of the page's bytes, in `data` when the image is about to change."""
        end = min((page + 1) * self.page_size, self.code_limit)
        return hashlib.sha256((data or self._data)[page * self.page_size : end]).digest()

    def _superblob(self):
        magic, length, count = struct.unpack_from(">3I", self._data, self._start)
        if magic != MAGIC_SUPERBLOB or length > self._size:
            raise MachOError("the code signature is not a superblob")
        for index in range(count):
            yield struct.unpack_from(">2I", self._data, self._start + 12 + 8 * index)

    def _read(self):
        magic, _, self.version, self.flags, self._hashes, identifier, _, self.pages, limit = (
            struct.unpack_from(">9I", self._data, self.offset)
        )
        self._hash_size, hash_type, _, page_shift = struct.unpack_from(
            ">4B", self._data, self.offset + 36
        )
        if magic != MAGIC_CODE_DIRECTORY or hash_type != HASH_SHA256:
            raise MachOError("the code directory is not one of SHA-256 hashes")
        self.page_size = 1 << page_shift
        self.code_limit = limit
        self.signature_start = self._start
        name = self._data[self.offset + identifier :]
        self.identifier = name.split(b"\0", 1)[0].decode()

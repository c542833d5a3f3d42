"""The load commands and segments are those that every phone from iOS 15 on accepts."""

import struct

from macho.image import (
    CPU_TYPE_ARM64,
    FILETYPE_DYLIB,
    LC_BUILD_VERSION,
    LC_DYLD_CHAINED_FIXUPS,
    LC_DYLD_INFO_ONLY,
    LC_ID_DYLIB,
    LC_LOAD_DYLIB,
    LC_RPATH,
    LC_UUID,
    PROTECTION_EXECUTE,
    PROTECTION_READ,
    PROTECTION_WRITE,
    Image,
)

PLATFORM_IOS = 2
IOS_15 = 15 << 16
PAGE = 0x4000
INSTALL_NAME = "@rpath/Dozewell2.dylib"
# Where root-less injection platforms keep frameworks and libraries, and the same for phones that
# move the root elsewhere.
RPATHS = [
    "/var/jb/Library/Frameworks",
    "/var/jb/usr/lib",
    "@loader_path/.jbroot/Library/Frameworks",
    "@loader_path/.jbroot/usr/lib",
]
PROTECTIONS = {
    "__TEXT": PROTECTION_READ | PROTECTION_EXECUTE,
    "__DATA_CONST": PROTECTION_READ | PROTECTION_WRITE,
    "__DATA": PROTECTION_READ | PROTECTION_WRITE,
    "__LINKEDIT": PROTECTION_READ,
}


def check(path):
    image = Image.read(path)
    if (image.cpu_type, image.file_type) != (CPU_TYPE_ARM64, FILETYPE_DYLIB):
        yield f"cpu type {image.cpu_type:#x}, file type {image.file_type}: not an arm64 dylib"
    yield from _check_names(image)
    yield from _check_version(image)
    yield from _check_segments(image)


def _check_names(image):
    names = [image.string(command, 0) for command in image.commands_of(LC_ID_DYLIB)]
    if names != [INSTALL_NAME]:
        yield f"the install names are {names}, not {INSTALL_NAME}"
    rpaths = [image.string(command, 0) for command in image.commands_of(LC_RPATH)]
    if rpaths != RPATHS:
        yield f"the run paths are {rpaths}, not {RPATHS}"
    if not image.commands_of(LC_LOAD_DYLIB):
        yield "there is no LC_LOAD_DYLIB"
    if len(image.commands_of(LC_UUID)) != 1:
        yield "there is no LC_UUID"
    if image.commands_of(LC_DYLD_INFO_ONLY) or not image.commands_of(LC_DYLD_CHAINED_FIXUPS):
        yield "the fixups are not chained"


def _check_version(image):
    found = [struct.unpack_from("<3I", c.body) for c in image.commands_of(LC_BUILD_VERSION)]
    if found != [(PLATFORM_IOS, IOS_15, IOS_15)]:
        yield f"LC_BUILD_VERSION is {found}, not iOS 15.0 with the SDK 15.0"


def _check_segments(image):
    end = file_end = 0
    for segment in image.segments:
        wanted = PROTECTIONS.get(segment.name)
        if segment.protection != wanted:
            yield f"{segment.name} has protection {segment.protection}, not {wanted}"
        if segment.address % PAGE or segment.offset % PAGE:
            yield f"{segment.name} does not start on a page"
        if segment.address < end or (segment.file_size and segment.offset < file_end):
            yield f"{segment.name} overlaps the segment before it"
        if segment.offset + segment.file_size > len(image.data):
            yield f"{segment.name} ends behind the file"
        end = segment.address + segment.size
        file_end = max(file_end, segment.offset + segment.file_size)
    names = [segment.name for segment in image.segments]
    if names[:1] != ["__TEXT"] or names[-1:] != ["__LINKEDIT"]:
        yield f"the segments are {names}: __TEXT must come first, __LINKEDIT last"

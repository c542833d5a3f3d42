"""The signature is ad-hoc, the only kind a phone's package trust accepts, and it is right."""

from macho.image import CPU_SUBTYPE_ARM64_ALL, CPU_SUBTYPE_ARM64E, Image
from macho.signature import FLAG_ADHOC, CodeDirectory

CMS_WITHOUT_CONTENT = 0  # a blob of nothing but its header counts as absent
SUBTYPES = {"arm64": CPU_SUBTYPE_ARM64_ALL, "arm64e": CPU_SUBTYPE_ARM64E}


def check(path, architecture):
    image = Image.read(path)
    if image.cpu_subtype != SUBTYPES[architecture]:
        yield f"the cpu subtype is {image.cpu_subtype:#x}, not {SUBTYPES[architecture]:#x}"
    directory = CodeDirectory(image)
    if directory.flags != FLAG_ADHOC:
        yield f"the signature's flags are {directory.flags:#x}, not {FLAG_ADHOC:#x}"
    if directory.cms is not None and len(directory.cms) > CMS_WITHOUT_CONTENT:
        yield "the signature has a CMS part"
    if directory.identifier != "Dozewell2.dylib":
        yield f"the signature's identifier is {directory.identifier}"
    yield from _check_pages(directory)


def _check_pages(directory):
    if directory.code_limit != directory.signature_start:
        yield f"the signature covers {directory.code_limit} of {directory.signature_start} bytes"
    if directory.pages * directory.page_size < directory.code_limit:
        yield f"the signature has {directory.pages} page hashes, too few"
    for page in range(directory.pages):
        if directory.stored_hash(page) != directory.actual_hash(page):
            yield f"the hash of page {page} is wrong"

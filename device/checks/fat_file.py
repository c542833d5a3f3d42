"""The fat file holds one slice for phones that authenticate pointers and one for those that do
not, exactly as they were signed."""

from macho.fat import read_slices
from macho.image import CPU_SUBTYPE_ARM64_ALL, CPU_SUBTYPE_ARM64E, CPU_TYPE_ARM64, Image

PAGE_ALIGN = 14  # log2 of the largest page a phone has
EXPECTED = [(CPU_TYPE_ARM64, CPU_SUBTYPE_ARM64_ALL), (CPU_TYPE_ARM64, CPU_SUBTYPE_ARM64E)]


def check(path, *thin_paths):
    slices = read_slices(path)
    types = sorted((part.cpu_type, part.cpu_subtype) for part in slices)
    if types != EXPECTED:
        found = ", ".join(f"{cpu:#x}/{subtype:#x}" for cpu, subtype in types)
        yield f"the slices are {found}, not one of arm64 and one of arm64e"
    for part in slices:
        yield from _check_slice(part)
    thin = [Image.read(thin_path).data for thin_path in thin_paths]
    if sorted(part.data for part in slices) != sorted(thin):
        yield "the slices are not the thin files byte for byte"


def _check_slice(part):
    name = f"the slice at {part.offset:#x}"
    image = Image(part.data)
    if (image.cpu_type, image.cpu_subtype) != (part.cpu_type, part.cpu_subtype):
        yield f"{name} is of another type than the fat header says"
    if part.align != PAGE_ALIGN or part.offset % (1 << PAGE_ALIGN):
        yield f"{name} is not aligned to 2^{PAGE_ALIGN}"

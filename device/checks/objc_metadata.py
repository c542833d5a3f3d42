"""No Objective-C sections: static metadata and string literals hold signed pointers, which the
cross compiler cannot write. Classes are registered at run time instead."""

from macho.image import Image


def check(path):
    image = Image.read(path)
    if not image.sections:
        yield "the slice has no sections"
    for section in image.sections:
        if section.name.startswith("__objc_") or section.name == "__cfstring":
            yield f"has the Objective-C section {section.full_name}"

from case import CLEAN, CheckCase, sample
from macho.image import LC_SEGMENT_64, Image


class ObjcMetadata(CheckCase):
    def test_classes_made_at_run_time_leave_no_sections(self):
        self.passes("objc-metadata", CLEAN)

    def test_string_literal(self):
        path = sample("objc_metadata/Dozewell2.dylib")
        self.fails("section __DATA_CONST,__cfstring", "objc-metadata", path)

    def test_class_list(self):
        with open(CLEAN, "rb") as file:
            data = file.read()
        renamed = data.replace(b"__const\0".ljust(16, b"\0"), b"__objc_classlist", 1)
        self.assertNotEqual(data, renamed)
        self.fails("__objc_classlist", "objc-metadata", self.written(renamed))

    def test_slice_without_sections_is_not_passed_over(self):
        segments = Image.read(CLEAN).commands_of(LC_SEGMENT_64)
        path = self.damaged(*[(command.offset + 64, "<I", 0) for command in segments])
        self.fails("the slice has no sections", "objc-metadata", path)

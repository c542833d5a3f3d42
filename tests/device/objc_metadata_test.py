from case import CLEAN, CheckCase, sample


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

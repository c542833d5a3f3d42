#!/usr/bin/env python3
"""What extension.py lets pass, and what it does not."""

import pathlib
import unittest

import extension

CLASS = {"tweak/panel/Page.cpp": 'builder.method<"show:", &Page::show>().property<"label", &Page::label>();'}
GOOD = [
    ("tweak/panel/Page.h", 'objc::send<void, "show:">(*this, true);'),
    ("tweak/panel/Page.h", 'return objc::send<UILabel,\n                  "label">(*this);'),
    ("tweak/panel/Page.h", 'objc::send<void, "setLabel:">(*this, label);'),
    ("tweak/settings/Store.h", "T name() const { return objc::send<T, #name>(*this); }"),
    ("tweak/panel/Page.cpp", 'addTarget(view(), objc::selector<"show:">());'),
    ("tweak/panel/Page.cpp", 'super<void, "layoutSubviews">();'),
    ("tweak/hooks/Startup.cpp", 'objc::hook<"UIView", "layoutSubviews", layout>();'),
    ("tweak/panel/PageActions.cpp", '#include "tweak/panel/PageImplementation.h"'),
]
BAD = [
    ("tweak/panel/Page.cpp", 'objc::send<void, "show:">(page, true);'),
    ("tweak/panel/Page.h", 'objc::send<void, "setHidden:">(*this, true);'),
    ("tweak/panel/Page.h", 'objc::send<UIView,\n  "superview">(*this);'),
    ("tweak/panel/Page.cpp", 'if (objc::respondsTo<"boolValue">(value)) return;'),
    ("tweak/panel/Page.cpp", 'objc::selector<"setHighlightsToday:">()'),
    ("tweak/panel/Page.cpp", 'if (objc_getClass("UIView") == nullptr) return;'),
    ("tweak/panel/Page.cpp", 'make(objc::classNamed<"UIView">());'),
    ("tweak/panel/Page.cpp", 'view.safeValueForKey("_label"_ns);'),
    ("tweak/panel/Other.cpp", '#include "tweak/panel/PageImplementation.h"'),
]


def texts(pairs):
    return {pathlib.Path(path): text for path, text in pairs}


class Names(unittest.TestCase):
    def complaints(self, path, text):
        lines = texts(CLASS.items())
        path = pathlib.Path(path)
        lines[path] = lines.get(path, "") + "\n" + text
        return list(extension.names(lines))

    def test_own_names_pass(self):
        for path, text in GOOD:
            with self.subTest(text):
                self.assertEqual([], self.complaints(path, text))

    def test_the_hosts_names_and_anothers_state_are_refused(self):
        for path, text in BAD:
            with self.subTest(text):
                self.assertEqual([pathlib.Path(path)], [found[0] for found in self.complaints(path, text)])


class Folders(unittest.TestCase):
    def complaints(self, *includes):
        return [str(path) for path, _, _ in extension.folders(texts(
            (f"tweak/{folder}/{folder}.h", f'#include "tweak/{other}/{other}.h"') for folder, other in includes))]

    def test_an_order_passes(self):
        self.assertEqual([], self.complaints(("hooks", "engine"), ("engine", "settings"), ("settings", "settings")))

    def test_a_circle_is_refused_in_each_of_its_folders(self):
        self.assertEqual(["tweak/engine/engine.h", "tweak/panel/panel.h"],
                         self.complaints(("hooks", "panel"), ("panel", "engine"), ("engine", "panel")))
        self.assertEqual(3, len(self.complaints(("a", "b"), ("b", "c"), ("c", "a"))))


if __name__ == "__main__":
    unittest.main()

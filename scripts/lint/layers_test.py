#!/usr/bin/env python3
"""What layers.py lets pass, and what it does not."""

import pathlib
import unittest

import layers

GOOD = [
    ("simulator/uikit/views/UIView.h", "simulator/uikit/touches/Touch.h"),
    ("simulator/uikit/views/UIView.h", "simulator/quartzcore/CALayer.h"),
    ("simulator/main.cpp", "simulator/program/Program.h"),
    ("simulator/machine/Clock.h", "objc/Object.h"),
    ("simulator/uikit/nib/NibFile.cpp", "tools/nibc/Archive.h"),
    ("tweak/panel/Page.h", "platform/UIKit.h"),
]
BAD = [
    ("simulator/quartzcore/CALayer.h", "simulator/uikit/views/UIView.h",
     "simulator/quartzcore must not include simulator/uikit, which comes after it"),
    ("simulator/machine/Phone.h", "simulator/script/words/Script.h",
     "simulator/machine must not include simulator/script, which comes after it"),
    ("simulator/machine/Phone.h", "simulator/newcomer/New.h",
     "simulator/newcomer has no place yet in the order of scripts/lint/layers.py"),
    ("simulator/newcomer/New.h", "simulator/machine/Phone.h",
     "simulator/newcomer has no place yet in the order of scripts/lint/layers.py"),
    ("simulator/serve/Api.h", "tweak/panel/Page.h", "simulator/ must not include tweak/"),
    ("objc/Class.h", "simulator/runtime/Send.h", "objc/ must not include simulator/"),
    ("platform/UIKit.h", "tweak/panel/Page.h", "platform/ must not include tweak/"),
]


def found(path, included):
    text = f'#pragma once\n\n#include <string>\n#include "{included}"\n'
    return list(layers.complaints({pathlib.Path(path): text}))


class Layers(unittest.TestCase):
    def test_what_comes_before_may_be_included(self):
        for path, included in GOOD:
            with self.subTest(path=path, included=included):
                self.assertEqual([], found(path, included))

    def test_what_comes_after_is_named_with_its_line(self):
        for path, included, text in BAD:
            with self.subTest(path=path, included=included):
                self.assertEqual([(pathlib.Path(path), 4, text)], found(path, included))

    def test_every_folder_of_the_order_is_there(self):
        for folder in layers.ORDER:
            with self.subTest(folder):
                self.assertTrue((layers.TOP / "simulator" / folder).is_dir())


if __name__ == "__main__":
    unittest.main()

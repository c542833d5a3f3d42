"""The icons of the bundle are one family of template images, in the sizes of every screen."""

import glob
import os
import unittest
import xml.etree.ElementTree

from png import read_png

BUNDLE = os.environ["BUNDLE"]
SOURCES = os.environ["ICON_SOURCES"]

POINTS = {
    "airplaneIcon": 28,
    "bluetoothIcon": 28,
    "customVolumeIcon": 28,
    "dndIcon": 28,
    "shortcutIcon": 28,
    "backIcon": 20,
    "hourglassStartIcon": 20,
    "nbSongsIcon": 20,
    "settingsIcon": 20,
    "timerIcon": 20,
}


class Icons(unittest.TestCase):
    def for_each(self, check):
        for name, points in POINTS.items():
            for scale, suffix in ((1, ""), (2, "@2x"), (3, "@3x")):
                with self.subTest(name=name, scale=scale):
                    path = os.path.join(BUNDLE, name + suffix + ".png")
                    check(points * scale, *read_png(path))

    def test_are_all_there_and_no_others(self):
        names = {os.path.basename(path) for path in glob.glob(glob.escape(BUNDLE) + "/*.png")}
        self.assertEqual(names, {n + s for n in POINTS for s in (".png", "@2x.png", "@3x.png")})

    def test_have_the_size_of_their_scale(self):
        def check(pixels, width, height, _rows):
            self.assertEqual((width, height), (pixels, pixels))

        self.for_each(check)

    def test_are_black_on_transparent_ground(self):
        def check(_pixels, _width, _height, rows):
            painted = [pixel for row in rows for pixel in row if pixel[3] > 0]
            self.assertTrue(painted)
            self.assertEqual({pixel[:3] for pixel in painted}, {(0, 0, 0)})
            self.assertGreater(max(pixel[3] for pixel in painted), 240)

        self.for_each(check)

    def test_weigh_alike(self):
        # None stands out beside the others: the share of ink of a drawing in lines.
        def check(pixels, _width, _height, rows):
            ink = sum(pixel[3] for row in rows for pixel in row) / 255 / pixels**2
            self.assertGreater(ink, 0.06)
            self.assertLess(ink, 0.32)

        self.for_each(check)

    def test_touch_no_edge(self):
        def check(pixels, _width, _height, rows):
            border = rows[0] + rows[-1] + [row[0] for row in rows] + [row[-1] for row in rows]
            self.assertEqual({pixel[3] for pixel in border}, {0}, pixels)

        self.for_each(check)

    def test_are_drawn_on_one_grid_with_one_pen(self):
        style = {
            "viewBox": "0 0 20 20",
            "fill": "none",
            "stroke": "#000",
            "stroke-width": "1.5",
            "stroke-linecap": "round",
            "stroke-linejoin": "round",
        }
        for name in POINTS:
            with self.subTest(name=name):
                root = xml.etree.ElementTree.parse(os.path.join(SOURCES, name + ".svg")).getroot()
                self.assertEqual({key: root.get(key) for key in style}, style)

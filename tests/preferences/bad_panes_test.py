"""A pane that cannot be read is told with its file and the place in it, and hides no other."""

import subprocess
import unittest

from registration import play

FOLDER = "/var/jb/Library/PreferenceLoader/Preferences"
BAD = "<plist version=\\\"1.0\\\"><dict><key>entry</key><string>Rain</string></dict></plist>"


class BadPanes(unittest.TestCase):
    def error_of(self, lines):
        with self.assertRaises(subprocess.CalledProcessError) as failure:
            play(lines)
        return failure.exception.stderr

    def test_stop_a_script(self):
        error = self.error_of(f'file "{FOLDER}/Rain.plist" "{BAD}"\nboot\nsettings open\n')
        self.assertIn(f"{FOLDER}/Rain.plist: entry: expected a dictionary", error)

    def test_leave_the_others_to_a_finger(self):
        play(f'file "{FOLDER}/Rain.plist" "{BAD}"\nboot\ntouch began 333 203\n'
             'touch ended 333 203\nsettings tap "Dozewell2"\n')

    def test_have_no_more_than_somebody_reads(self):
        pane = ('<plist version=\\"1.0\\"><dict><key>title</key><string>%s</string><key>items</key>'
                '<array>%s</array></dict></plist>')
        for many, message in (((5000 * "x", ""), "title: expected at most 4000 bytes of text, found 5000"),
                              (("", 501 * "<true/>"), "items: expected at most 500 of them, found 501")):
            with self.subTest(message):
                error = self.error_of(f'file "{FOLDER}/Rain.plist" "{pane % many}"\nboot\nsettings open\n')
                self.assertIn(f"{FOLDER}/Rain.plist: {message}", error)

    def test_may_lack_what_a_link_names(self):
        link = ('<plist version=\\"1.0\\"><dict><key>items</key><array><dict><key>cell</key>'
                '<string>PSLinkCell</string><key>label</key><string>Drops</string></dict></array>'
                '</dict></plist>')
        error = self.error_of(f'file "{FOLDER}/Rain.plist" "{link}"\nboot\nsettings open\n')
        self.assertIn(f"{FOLDER}/Rain.plist: items[0].label: there is no list Drops.plist", error)
        error = self.error_of(f'file "{FOLDER}/Rain.plist" "{link}"\n'
                              f'file "{FOLDER}/Drops.plist" "{link}"\nboot\nsettings open\n')
        self.assertIn(f"{FOLDER}/Rain.plist: there is no entry, and no link leads here", error)

    def test_are_not_confused_with_rows_that_are_not_there(self):
        error = self.error_of('boot\nsettings open\nsettings tap "Dozewell"\n')
        self.assertIn('the page has no row "Dozewell"; did you mean "Dozewell2"?', error)

    def test_have_rows_of_one_label_in_several_groups(self):
        error = self.error_of('boot\nsettings open\nsettings tap "Dozewell2"\n'
                              'settings tap "Run a shortcut"\n')
        self.assertIn('several rows "Run a shortcut": under "When the timer starts", '
                      'under "What happens then"', error)

    def test_have_rows_that_can_be_covered(self):
        error = self.error_of('boot\nsettings open\ncontrol-center open\nadvance 1s\n'
                              'settings tap "Dozewell2"\n')
        self.assertIn("the touch does not reach _SettingsRow but", error)

    def test_need_the_application(self):
        self.assertIn("the Settings application is not open",
                      self.error_of('boot\nsettings tap "Dozewell2"\n'))
        self.assertIn("the Settings application is open",
                      self.error_of("boot\nsettings open\nexpect-settings closed\n"))


if __name__ == "__main__":
    unittest.main()

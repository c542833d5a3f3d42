#!/usr/bin/env python3
"""What captures.py lets pass, and what it does not."""

import unittest

import captures

GOOD = [
    "dispatch::onMain([] { run(); });",
    "dispatch::onMain([panel = retained()] { panel->show(); });",
    "dispatch::onMain([view = objc::retain(view), alpha] { view->setAlpha(alpha); });",
    "forEachView(views, [this](UIView view) { add(view); });",
    "forEachBox([&preferences](UIView box) { preferences.read(box); });",
    "dispatch::onMain([panel = retained()] {\n"
    "  forEachView(panel->views, [&panel](UIView view) { panel->add(view); });\n});",
    "const auto [x, y] = view.frame().origin;",
    "const auto& [key, value] = pair;",
    "attributes[count & 1](x);",
    "[[nodiscard]] int f();",
    'log("[this] { }");  // [&] { }',
    'log(R"x(")" [this] { })x");',
    "dispatch::onMain([view = objc::retain(view())] { view->show(); });",
]
BAD = [
    ("dispatch::onMain([this] { run(); });", 1),
    ("dispatch::onMain([=] { run(); });", 1),
    ("run();\ndispatch::onMain(\n    [&] { run(); });", 3),
    ("UIKit::animate(1, [view = objc::retain(view),\n  &page] { page.show(); });", 1),
    ("dispatch::onMain([row, this]() mutable { run(row); });", 1),
    ("dispatch::onMain([panel = this] { panel->run(); });", 1),
    ("return [&] { run(); };", 1),
    ("return[this] { run(); };", 1),
    ("dispatch::onMain([this] noexcept { run(); });", 1),
    ("dispatch::onMain([this] -> void { run(); });", 1),
    ("dispatch::onMainAfter(300'000, [this] { put('x'); });", 1),
    ('log(R"(")"); onMain([this] { run(); });', 1),
    ("dispatch::onMain([page = view()] { page.show(); });", 1),
    ("dispatch::onMain([me = panel->self()] { show(me); });", 1),
    ("dispatch::onMain([me = &panel] { me->show(); });", 1),
    ("const auto later = [this] { run(); };", 1),
    ("forEachView(views, [this](UIView view) { dispatch::onMain([this] { add(); }); });", 1),
    ("forEachView(views, keep([this](UIView view) { add(view); }));", 1),
    ("for (UIView view : views) onMain([&view] { view.show(); });", 1),
]


class Captures(unittest.TestCase):
    def test_owners_values_and_immediate_calls_pass(self):
        for text in GOOD:
            with self.subTest(text):
                self.assertEqual([], list(captures.refused(text)))

    def test_what_may_be_gone_is_refused_with_its_line(self):
        for text, line in BAD:
            with self.subTest(text):
                self.assertEqual([line], [found for found, _ in captures.refused(text)])


if __name__ == "__main__":
    unittest.main()

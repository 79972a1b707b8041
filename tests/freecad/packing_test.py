"""The add-on's own packing against GLib's, byte by byte. packing_test.py FOLDER_OF_THE_ADD_ON"""
import random
import sys
import unittest

from gi.repository import GLib

sys.path.insert(0, sys.argv.pop())
from velmora_cad.packing import entities_answer  # noqa: E402


class Entity(tuple):
    handle = property(lambda self: self[0])
    class_name = property(lambda self: self[1])
    closed = property(lambda self: self[2])
    numbers = property(lambda self: self[3])


def some_entities(count):
    for i in range(count):
        numbers = [random.uniform(-1e9, 1e9) for _ in range(random.choice((0, 1, 31, 40, 9000)))]
        texts = "é" * random.randint(0, 300), "c" * random.randint(0, 9)
        yield Entity((*texts, i % 2 == 1, numbers))


class PackingTest(unittest.TestCase):
    def check(self, entities):
        packed = entities_answer(entities)
        expected = GLib.Variant("(a(ssbad))", ([tuple(one) for one in entities],))
        self.assertTrue(packed.is_normal_form())
        self.assertEqual(packed.get_data_as_bytes().get_data(),
                         expected.get_data_as_bytes().get_data())

    def test_of_all_sizes(self):
        random.seed(2002)
        for count in (0, 1, 2, 3, 12, 60):
            self.check(list(some_entities(count)))

    def test_around_the_sizes_at_which_the_ends_grow(self):
        for length in (*range(225, 256), *range(65500, 65536)):
            self.check([Entity(("", "c" * length, True, []))])
            self.check([Entity(("", "c" * (length - 20), True, [1.5, -0.0]))])

    def test_numbers_that_are_none(self):
        self.check([Entity(("a", "b", False, [float("inf"), 5e-324]))])


unittest.main()

"""Entities as an answer on the bus, packed here: GLib's own road takes a step in Python for each
number, ten times the time of reading the drawing."""
import struct

from gi.repository import GLib

_ANSWER = GLib.VariantType.new("(a(ssbad))")
_WORD = 8  # bytes; numbers, and so what holds them, begin at a multiple


def entities_answer(entities):
    # The answer holds one array, which is as long as itself.
    return GLib.Variant.new_from_bytes(_ANSWER, GLib.Bytes.new(bytes(_array(entities))), False)


def _array(entities):
    """The entities one behind the other, then where each of them ends."""
    packed = bytearray()
    ends = []
    for entity in entities:
        packed += _padding(packed)
        packed += _record(entity)
        ends.append(len(packed))
    return packed + _offsets(len(packed), ends)


def _record(entity):
    """Two texts, a flag, the numbers, then the ends of the texts, the second one first."""
    handle = entity.handle.encode() + b"\0"
    texts = handle + entity.class_name.encode() + b"\0"
    record = texts + bytes([entity.closed])
    record += _padding(record)
    record += struct.pack(f"={len(entity.numbers)}d", *entity.numbers)
    return record + _offsets(len(record), [len(texts), len(handle)])


def _padding(packed):
    return bytes(-len(packed) % _WORD)


def _offsets(body, values):
    """In the least size in which the whole, with them, can be told."""
    for size, code in ((1, "B"), (2, "H"), (4, "L")):
        if body + size * len(values) < 1 << 8 * size:
            return struct.pack(f"<{len(values)}{code}", *values)
    raise OverflowError("a block of entities has no end")

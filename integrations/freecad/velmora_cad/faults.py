"""What goes wrong, with the number that Velmora shows."""

INVALID_CALL = 5
FILE_NOT_FOUND = 53
OBJECT_REQUIRED = 424
NO_SUCH_MEMBER = 438
AUTOMATION_ERROR = 440
GONE = 462
CANCELLED = 0x80004004
REFUSED = 0x80040200  # no drawing to capture; the text is for the user


class Fault(Exception):
    def __init__(self, number, text):
        super().__init__(text)
        self.number = number

    @property
    def bus_name(self):
        return f"org.velmora.Cad1.Error.E{self.number:08X}"

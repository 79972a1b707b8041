"""New documents from drawing templates: FreeCAD's own files or DXF, whatever their names."""
import os

import FreeCAD

from .faults import AUTOMATION_ERROR, FILE_NOT_FOUND, Fault

ARCHIVE = b"PK\x03\x04"
# A drawing begins with its first section or with a comment.
DXF_GROUPS = (b"0", b"999")


def new_document(template):
    """Nothing is opened where the template can't be read."""
    fill = _reader_of(template)
    document = FreeCAD.newDocument()
    try:
        fill(document, template)
    except Exception as failure:
        FreeCAD.closeDocument(document.Name)
        raise Fault(AUTOMATION_ERROR, f"{template}: {failure}") from failure
    document.recompute()
    return document


def _reader_of(template):
    if not os.path.isfile(template):
        raise Fault(FILE_NOT_FOUND, f"{template} is missing")
    with open(template, "rb") as file:
        start = file.read(len(ARCHIVE))
        file.seek(0)
        group = file.readline(80).strip()
    if start == ARCHIVE:
        return _fill_from_project
    if group in DXF_GROUPS:
        return _fill_from_dxf
    raise Fault(AUTOMATION_ERROR, f"{template} is neither a DXF drawing nor a document of FreeCAD")


def _fill_from_project(document, template):
    document.mergeProject(template)


def _fill_from_dxf(document, template):
    import Import

    Import.readDXF(template, document.Name)

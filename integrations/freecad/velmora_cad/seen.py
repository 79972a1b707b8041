"""What of a document can be captured, and what is passed over."""

_DIMENSIONS = {"Dimension", "LinearDimension", "AngularDimension"}
_TEXTS = {"Text", "DraftText", "Label", "DraftLabel"}
_KINDS_BY_CLASS = (
    ("Mesh::Feature", "mesh"),
    ("Points::Feature", "points"),
    ("Image::ImagePlane", "image"),
    ("App::Annotation", "text"),
    ("App::AnnotationLabel", "text"),
    ("Part::Feature", "other"),
)


def seen(objects):
    """The objects with lines and their shapes where they stand, then the kind and the name of each
    that is passed over. What only holds others, or can't be seen, is neither."""
    shapes, passed_over = [], []
    for obj in objects:
        if not _is_seen(obj) or _is_holder(obj) or obj.isDerivedFrom("Part::Datum"):
            continue
        shape = _placed_shape(obj)
        kind = _spatial_kind(shape) if shape is not None else _kind_without_shape(obj)
        if kind is not None:
            passed_over.append((kind, obj.Label))
        elif shape is not None:
            shapes.append((obj, shape))
    return shapes, passed_over


def _is_seen(obj):
    while obj is not None and obj.Visibility:
        obj = obj.getParentGeoFeatureGroup()
    return obj is None


def _is_holder(obj):
    return (
        obj.hasExtension("App::GroupExtension")
        or obj.isDerivedFrom("App::OriginFeature")
        or obj.isDerivedFrom("App::Origin")
        or _draft_type(obj) in ("Layer", "LayerContainer", "WorkingPlaneProxy")
    )


def _draft_type(obj):
    return getattr(getattr(obj, "Proxy", None), "Type", None)


def _placed_shape(obj):
    shape = getattr(obj, "Shape", None)
    if shape is None or not hasattr(shape, "isNull") or shape.isNull():
        return None
    if obj.getParentGeoFeatureGroup() is not None:
        shape = shape.copy()
        shape.Placement = obj.getGlobalPlacement()
    return shape


def _spatial_kind(shape):
    if shape.ShapeType in ("Edge", "Wire", "Vertex"):
        return None
    if shape.Solids:
        return "solid"
    if shape.Shells or any(face.Surface.TypeId != "Part::GeomPlane" for face in shape.Faces):
        return "surface"
    return None


def _kind_without_shape(obj):
    """None of what shows nothing among the lines: tables, pages, materials."""
    if _draft_type(obj) in _DIMENSIONS:
        return "dimension"
    if _draft_type(obj) in _TEXTS:
        return "text"
    return next((kind for name, kind in _KINDS_BY_CLASS if obj.isDerivedFrom(name)), None)

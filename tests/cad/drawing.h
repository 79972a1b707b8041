// Entity lists for the tests, and the chaining rules as plain scans to hold the program's against.
#pragma once

#include "cad/entities.h"
#include "document/session.h"

#include <functional>
#include <initializer_list>
#include <optional>
#include <random>
#include <utility>
#include <vector>

namespace velmora::test {

using Place = std::pair<double, double>;

inline ObjCad entity(TipoCad tipo, const std::vector<Place>& places, std::int32_t orden = 0) {
    ObjCad object;
    for (const auto& [X, Y] : places)
        object.Ptos.append({.X = X, .Y = Y});
    object.NPtos = object.Ptos.upper();
    object.Orden = orden;
    object.Tipo = tipo;
    return object;
}

inline ObjCad line(Place from, Place to) {
    return entity(TipoCad::AcDbLine, {from, to});
}

inline ObjCad point(Place at) {
    return entity(TipoCad::AcDbPoint, {at, at});
}

/// Makes session.ObjsCad of these, Id running from 0.
inline void set_drawing(const std::vector<ObjCad>& objects) {
    session.ObjsCad.erase();
    for (const ObjCad& object : objects) {
        session.ObjsCad.append(object);
        session.ObjsCad[session.ObjsCad.upper()].Id = session.ObjsCad.upper();
    }
}

inline void set_all_orden(std::int32_t orden) {
    for (ObjCad& object : session.ObjsCad.all())
        object.Orden = orden;
}

inline std::vector<Place> places_of(const Array<Pto>& points) {
    std::vector<Place> places;
    for (const Pto& one : points.all())
        places.emplace_back(one.X, one.Y);
    return places;
}

inline std::vector<std::int32_t> ordenes() {
    std::vector<std::int32_t> all;
    for (const ObjCad& object : session.ObjsCad.all())
        all.push_back(object.Orden);
    return all;
}

inline std::vector<std::int32_t> ids() {
    std::vector<std::int32_t> all;
    for (const ObjCad& object : session.ObjsCad.all())
        all.push_back(object.Id);
    return all;
}

/// A drawing of short runs among few cells, so that ends meet often and are met in both directions.
inline std::vector<ObjCad> random_drawing(std::mt19937& random, int most_entities) {
    const auto below = [&](int n) {
        return static_cast<int>(random() % static_cast<unsigned>(n));
    };
    const int cells = 1 + below(5);
    const auto coordinate = [&] {
        return below(2 * cells) - cells + below(4) / 4.0;
    };
    std::vector<ObjCad> objects;
    for (int count = 1 + below(most_entities); count > 0; --count) {
        std::vector<Place> places;
        for (int n = 2 + below(4); n > 0; --n)
            places.emplace_back(coordinate(), coordinate());
        objects.push_back(
            entity(below(3) == 0 ? TipoCad::AcDbPolyline : TipoCad::AcDbLine, places));
    }
    return objects;
}

/// First index with Usado 0, and 0 when there is none.
inline std::int32_t PrimerNoUsado() {
    for (std::int32_t i = 0; i <= session.ObjsCad.upper(); ++i)
        if (session.ObjsCad[i].Usado == 0)
            return i;
    return 0;
}

/// -1 when no element has Usado 0, also for a list without elements.
inline Flag TodosUsados() {
    return ContarNoUsados() == 0 ? True : False;
}

/// The rule of the chain, entity by entity.
inline std::int32_t plain_next(double X, double Y, bool por_vertices) {
    Array<ObjCad>& objects = session.ObjsCad;
    for (std::int32_t i = 0; i <= objects.upper(); ++i) {
        if (objects[i].Usado != 0)
            continue;
        if (touches(objects[i].Ptos[0], X, Y))
            return i;
        if (touches(last_point(objects[i]), X, Y)) {
            reverse_points(objects[i]);
            return i;
        }
    }
    if (ContarNoUsados() == 1)
        return PrimerNoUsado();
    for (std::int32_t i = 0; por_vertices && i <= objects.upper(); ++i) {
        if (objects[i].Tipo != TipoCad::AcDbPolyline)
            continue;
        for (const Pto& vertex : objects[i].Ptos.all()) {
            if (touches(vertex, X, Y))
                return i;
        }
    }
    return -1;
}

/// The walk of both sources from a point on; the indices of the entities given up.
inline std::vector<std::int32_t> plain_walk(Pto current, bool counts_positions) {
    Array<ObjCad>& objects = session.ObjsCad;
    std::vector<std::int32_t> given_up;
    std::int32_t position = 0;
    while (TodosUsados() == False) {
        for (std::int32_t i = 0; i <= objects.upper(); ++i) {
            if (objects[i].Usado != 0)
                continue;
            const std::int32_t found = plain_next(current.X, current.Y, false);
            if (found > -1) {
                current = last_point(objects[found]);
                objects[found].Usado = True;
                if (counts_positions)
                    ++position;
                objects[found].Orden = position;
            } else {
                objects[i].Usado = True;
                given_up.push_back(i);
            }
        }
    }
    return given_up;
}

} // namespace velmora::test

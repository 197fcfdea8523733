// Clipping and point tests of the plane; measures, intersections and a displacement step in space.
// Interpolation and the search for a root, in math/curves.h, come along.
//
// Polygons are arrays of vertices with a count, closed by the edge from the last to the first; any
// count is safe. Intersections return false and leave their results untouched when there is none,
// and when an input is NaN. Lengths up to 1e-12 count as 0. No function throws, and all but Fract
// are thread-safe.

#pragma once

#include "math/curves.h"
#include "math/matrix.h"
#include "math/vector.h"

namespace math {

// -- Clipping ---------------------------------------------------------------------------------
//
// A rectangle is given as (a, b, c, d) = top, left, bottom, right, or with opposite sides
// exchanged: x runs from min(b, d) to max(b, d), y from min(a, c) to max(a, c).

// The most vertices that polygon_clip takes, and the most that it can make of them: a pass adds at
// most one to every two.
inline constexpr int max_vertices_to_clip = 19;
inline constexpr int max_clipped_vertices = 94;

// Clips the polygon to the rectangle (Sutherland and Hodgman, Reentrant Polygon Clipping, 1974),
// against y >= min, y <= max, x >= min and x <= max in turn; points on the boundary stay. The
// vertices and their count are replaced: there must be room for the result, which for a convex
// polygon has at most 4 vertices more, and never more than max_clipped_vertices. False when
// nothing is left (a count of 0), and, with nothing changed, for more than 19 vertices or a
// negative count.
bool polygon_clip(double a, double b, double c, double d, TGeomVector2D<double>* vertices,
                  int& count);

// Clips the line p + t * v, infinite in both directions. One along an axis gives the two points on
// the sides of the rectangle; for any other the points on the left and the right side are clipped
// as a polygon of two, in which points where the line enters or leaves come twice: give `out` room
// for 9. False when the line misses; for one along an axis, `out` and `count` are untouched then.
bool line_clip(double a, double b, double c, double d, const TGeomVector2D<double>& p,
               const TGeomVector2D<double>& v, TGeomVector2D<double>* out, int& count);

// -- Point tests ------------------------------------------------------------------------------

// Whether the point lies in the polygon by the even-odd rule, or on its boundary. Coordinates are
// compared in single precision.
bool PolygonContainsPoint(const TGeomVector2D<double>* vertices, int count,
                          const TGeomVector2D<double>& point);

// A pyramid: the apex V0 and the corners of the base in order around it.
struct Pyramid3D {
    TGeomVector3D<double> V0, V1, V2, V3, V4;
};

// Whether the point lies in the pyramid's outline seen along x and along z: (z, y) in the triangle
// of V1, V2, V0 and (x, y) in that of V2, V3, V0. Exact for an upright pyramid on a rectangle along
// the axes.
bool PyramidContainsPoint(const Pyramid3D& pyramid, const TGeomVector3D<double>& point);

// -- Measures ---------------------------------------------------------------------------------

// The mean of n points; NaN for n = 0.
TGeomVector3D<double> compute_center(const TGeomVector3D<double>* points, int n);

// The unit normal of a polygon, which need not be quite plane (Newell's method: Sutherland, Sproull
// and Schumacker, 1974). It points to the viewer who sees the vertices clockwise; (0, 0, 0) when
// there is no area.
TGeomVector3D<double> compute_normal(const TGeomVector3D<double>* points, int n);

// The distance of b from the plane through a with the unit normal n.
double dist_to_plane(const TGeomVector3D<double>& a, const TGeomVector3D<double>& n,
                     const TGeomVector3D<double>& b);

// The distance of q from the line through p with the unit direction v.
double dist_to_line(const TGeomVector3D<double>& p, const TGeomVector3D<double>& v,
                    const TGeomVector3D<double>& q);

// Whether two vectors differ by at least the threshold, relative to the longer one. Equal vectors
// never do.
bool DifVect(const TGeomVector3D<double>& a, const TGeomVector3D<double>& b, double threshold);

// -- Intersections ----------------------------------------------------------------------------

// The line p + t * v with the plane through q with normal n; false when they are parallel.
bool intersect(const TGeomVector3D<double>& p, const TGeomVector3D<double>& v,
               const TGeomVector3D<double>& q, const TGeomVector3D<double>& n,
               TGeomVector3D<double>& out);

// The same for the ray t >= 0; also returns t.
bool intersect(const TGeomVector3D<double>& p, const TGeomVector3D<double>& v,
               const TGeomVector3D<double>& q, const TGeomVector3D<double>& n,
               TGeomVector3D<double>& out, double& t);

// The ray p + t * v with the ellipsoid of the radii r around the origin: the nearest hit ahead;
// from inside, the one on the way out. A ray that only touches misses.
bool intersect(const TGeomVector3D<double>& p, const TGeomVector3D<double>& v,
               const TGeomVector3D<double>& r, TGeomVector3D<double>& out);

// The line in which the plane through pA with normal nA meets the one through pB with normal nB:
// one of its points and its unit direction nA x nB. False when they are parallel.
bool intersect(const TGeomVector3D<double>& pA, const TGeomVector3D<double>& nA,
               const TGeomVector3D<double>& pB, const TGeomVector3D<double>& nB,
               TGeomVector3D<double>& point, TGeomVector3D<double>& direction);

// The segment from a to b with a plane polygon. The segment counts as long as its length in whole
// units: the hit must be no farther than that from both ends, so that a segment shorter than 1
// never hits. Fewer than 3 vertices have no inside.
bool intersect(const TGeomVector3D<double>* polygon, int count, const TGeomVector3D<double>& a,
               const TGeomVector3D<double>& b, TGeomVector3D<double>& out);

// Whether a quadrilateral and a plane polygon have a point in common, or come within 1e-12 of it
// along the line where their planes meet. False in parallel planes, for any other count of the
// quadrilateral than 4, and for fewer than 3 vertices.
bool intersect(const TGeomVector3D<double>* quad, int quad_count,
               const TGeomVector3D<double>* polygon, int count);

// The segment from a to b with the faces of a pyramid, in the order (V1, V2, V0), (V2, V3, V0),
// (V3, V4, V0), (V1, V4, V0) and the base; see the segment with a polygon. 0 without a hit, and
// the results untouched; 2 when exactly two faces are hit, in points at least 1e-12 apart; 1
// otherwise, with the first hit in out1.
int intersect(const Pyramid3D& pyramid, const TGeomVector3D<double>& a,
              const TGeomVector3D<double>& b, TGeomVector3D<double>& out1,
              TGeomVector3D<double>& out2);

// -- Displacement -----------------------------------------------------------------------------

// A random midpoint displacement (Fournier, Fussell and Carpenter, Computer Rendering of Stochastic
// Models, 1982): p with z replaced by h + (h - p.z) * (2u - 1), where h is the root of the mean of
// the squared heights of a, b, c and d, weighted by their inverse squared distances from p, and on
// p's side of 0; u is one draw of the process-wide generator. NaN when p is one of the four.
TGeomVector3D<double> Fract(const TGeomVector3D<double>& p, const TGeomVector3D<double>& a,
                            const TGeomVector3D<double>& b, const TGeomVector3D<double>& c,
                            const TGeomVector3D<double>& d);

} // namespace math

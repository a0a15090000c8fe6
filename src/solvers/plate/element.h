// The rectangular plate element with 12 degrees of freedom (Melosh, 1961;
// Zienkiewicz and Cheung, 1964): at each corner the deflection w and the rotations
// rx = -dw/dy, ry = dw/dx. Corners run round from the lower left: (-,-), (+,-),
// (+,+), (-,+) in the natural coordinates xi, eta. Slopes across edges are not
// continuous; on rectangles the element passes the patch test and converges with
// the square of its size.
#pragma once

#include <Eigen/Dense>
#include <array>

namespace plate {

using Vector12 = Eigen::Matrix<double, 12, 1>;
using Matrix12 = Eigen::Matrix<double, 12, 12>;
using Curvature = Eigen::Matrix<double, 3, 12>;

/// Signs of xi and eta at the corners.
inline constexpr std::array<std::array<double, 2>, 4> corners{{{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}};

/// Shape functions of an element with half sides `a`, `b` at (xi, eta).
Vector12 shape(double xi, double eta, double a, double b);

/// Rows -w,xx  -w,yy  -2 w,xy of an element with half sides `a`, `b` at (xi, eta).
Curvature curvature(double xi, double eta, double a, double b);

/// Integral of the shape functions over xi0..xi1, eta0..eta1 [length^2 times theirs].
Vector12 shapeIntegral(double xi0, double xi1, double eta0, double eta1, double a, double b);

/// Integral of the shape functions over the quarter of the element next to a corner, which is the
/// element's part of that node's area.
Vector12 quarterIntegral(int corner, double a, double b);

/// Integral of N N^T over the same quarters. They scale from the element with a = b = 1.
class QuarterProducts {
  public:
    QuarterProducts();
    Matrix12 operator()(int corner, double a, double b) const;

  private:
    std::array<Matrix12, 4> unit_;
};

/// Points and weights of Gauss' rules of 2, 3 and 4 points on -1..1.
struct GaussPoint {
    double at, weight;
};
inline constexpr std::array<GaussPoint, 2> gauss2{{{-0.57735026918962576, 1}, {0.57735026918962576, 1}}};
inline constexpr std::array<GaussPoint, 3> gauss3{
    {{-0.77459666924148338, 5. / 9}, {0, 8. / 9}, {0.77459666924148338, 5. / 9}}};
inline constexpr std::array<GaussPoint, 4> gauss4{{{-0.86113631159405258, 0.34785484513745386},
                                                   {-0.33998104358485626, 0.65214515486254614},
                                                   {0.33998104358485626, 0.65214515486254614},
                                                   {0.86113631159405258, 0.34785484513745386}}};

}  // namespace plate

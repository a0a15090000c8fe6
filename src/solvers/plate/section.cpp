#include "solvers/plate/section.h"

namespace plate {
namespace {

using Eigen::Matrix3d;

Matrix3d planeStress(const SlabLayer& layer) {
    const double nu = layer.PR;
    Matrix3d q;
    q << 1, nu, 0, nu, 1, 0, 0, 0, (1 - nu) / 2;
    return q * (layer.YM / (1 - nu * nu));
}

Section unbonded(const std::vector<SlabLayer>& layers, const std::array<double, 2>& T) {
    Section section{Matrix3d::Zero(), {}, 0};
    for (std::size_t k = 0; k < layers.size(); ++k) {
        const Matrix3d q = planeStress(layers[k]);
        section.layer[k] = {q * (T[k] * T[k] * T[k] / 12), q * (T[k] / 2)};
        section.stiffness += section.layer[k].moment;
        section.thickness += T[k];
    }
    return section;
}

Section laminate(const std::vector<SlabLayer>& layers, const std::array<double, 2>& T) {
    // z counts downward from the top of layer 1.
    const std::array<double, 3> z{0, T[0], T[0] + T[1]};
    std::array<Matrix3d, 2> q, first, second;
    Matrix3d A = Matrix3d::Zero(), B = Matrix3d::Zero();
    for (std::size_t k = 0; k < 2; ++k) {
        q[k] = planeStress(layers[k]);
        first[k] = q[k] * ((z[k + 1] * z[k + 1] - z[k] * z[k]) / 2);
        second[k] = q[k] * ((z[k + 1] * z[k + 1] * z[k + 1] - z[k] * z[k] * z[k]) / 3);
        A += q[k] * T[k];
        B += first[k];
    }
    const Matrix3d atTop = -A.inverse() * B;  // strain at z = 0 by curvature, from A e + B = 0
    const double neutral = B(0, 0) / A(0, 0);
    Section section{Matrix3d::Zero(), {}, z[2]};
    for (std::size_t k = 0; k < 2; ++k) {
        const Matrix3d force = q[k] * T[k] * atTop + first[k];
        section.layer[k].moment = first[k] * atTop + second[k] - neutral * force;
        section.layer[k].bottom = q[k] * (atTop + z[k + 1] * Matrix3d::Identity());
        section.stiffness += section.layer[k].moment;
    }
    return section;
}

}  // namespace

Section makeSection(const std::vector<SlabLayer>& layers, const std::array<double, 2>& T, bool bonded) {
    return layers.size() == 2 && bonded ? laminate(layers, T) : unbonded(layers, T);
}

}  // namespace plate

#include "solvers/plate/mesh.h"

#include <algorithm>

namespace plate {
namespace {

/// Borders of the nodes' areas along one axis: the ends and the middles between.
std::vector<double> borders(const std::vector<double>& grid) {
    std::vector<double> edge{grid.front()};
    for (std::size_t i = 1; i < grid.size(); ++i) edge.push_back((grid[i - 1] + grid[i]) / 2);
    edge.push_back(grid.back());
    return edge;
}

void addSlab(Mesh& mesh, const Slab& slab, int s) {
    const auto nx = slab.X.size(), ny = slab.Y.size();
    const auto bx = borders(slab.X), by = borders(slab.Y);
    const int first = mesh.count();
    mesh.first.push_back(first);
    for (std::size_t i = 0; i < nx; ++i)
        for (std::size_t j = 0; j < ny; ++j)
            mesh.nodes.push_back({s, slab.X[i], slab.Y[j], {bx[i], bx[i + 1], by[j], by[j + 1]}});
    for (std::size_t i = 0; i + 1 < nx; ++i)
        for (std::size_t j = 0; j + 1 < ny; ++j) {
            const int n = first + static_cast<int>(i * ny + j), column = static_cast<int>(ny);
            mesh.elements.push_back({s,
                                     {n, n + column, n + column + 1, n + 1},
                                     slab.X[i],
                                     slab.Y[j],
                                     (slab.X[i + 1] - slab.X[i]) / 2,
                                     (slab.Y[j + 1] - slab.Y[j]) / 2});
        }
}

/// Nodes along a side of slab s, from the side's lower or left end.
std::vector<int> sideNodes(const Problem& problem, const Mesh& mesh, std::size_t s, std::size_t side) {
    const int nx = static_cast<int>(problem.slabs[s].X.size()),
              ny = static_cast<int>(problem.slabs[s].Y.size());
    std::vector<int> nodes;
    if (side < 2)
        for (int j = 0; j < ny; ++j) nodes.push_back(mesh.first[s] + (side == 0 ? 0 : (nx - 1) * ny) + j);
    else
        for (int i = 0; i < nx; ++i) nodes.push_back(mesh.first[s] + i * ny + (side == 2 ? 0 : ny - 1));
    return nodes;
}

/// Slabs of a joint: a has it on its right or top side, b opposite.
struct Pair {
    std::size_t a = 0, b = 0;
    bool vertical = false;
};

Pair slabsOf(const Problem& problem, int joint) {
    Pair pair;
    for (std::size_t s = 0; s < problem.slabs.size(); ++s)
        for (std::size_t side = 0; side < 4; ++side) {
            if (problem.slabs[s].JONO[side] != joint) continue;
            (side % 2 ? pair.a : pair.b) = s;
            pair.vertical = side < 2;
        }
    return pair;
}

void addJoint(Mesh& mesh, const Problem& problem, int joint) {
    const auto [a, b, vertical] = slabsOf(problem, joint);
    const auto nodesA = sideNodes(problem, mesh, a, vertical ? 1 : 3);
    const auto nodesB = sideNodes(problem, mesh, b, vertical ? 0 : 2);
    const auto& grid = vertical ? problem.slabs[a].Y : problem.slabs[a].X;
    const auto edge = borders(grid);
    JointLine line{vertical, {}};
    for (std::size_t i = 0; i < grid.size(); ++i)
        line.nodes.push_back({nodesA[i], nodesB[i], grid[i], edge[i + 1] - edge[i]});
    mesh.joints.push_back(std::move(line));
}

/// Walks the joints from each slab that has no place yet.
void place(Mesh& mesh, const Problem& problem) {
    const std::size_t slabs = problem.slabs.size();
    mesh.origin.assign(slabs, {0, 0});
    mesh.group.assign(slabs, -1);
    for (std::size_t start = 0, groups = 0; start < slabs; ++start) {
        if (mesh.group[start] >= 0) continue;
        mesh.group[start] = static_cast<int>(groups++);
        for (std::size_t pass = 0; pass < slabs; ++pass)
            for (int j = 1; j <= static_cast<int>(problem.joints.size()); ++j) {
                const auto [a, b, vertical] = slabsOf(problem, j);
                const double dx = vertical ? problem.slabs[a].X.back() : 0;
                const double dy = vertical ? 0 : problem.slabs[a].Y.back();
                if (mesh.group[a] >= 0 && mesh.group[b] < 0) {
                    mesh.group[b] = mesh.group[a];
                    mesh.origin[b] = {mesh.origin[a][0] + dx, mesh.origin[a][1] + dy};
                } else if (mesh.group[b] >= 0 && mesh.group[a] < 0) {
                    mesh.group[a] = mesh.group[b];
                    mesh.origin[a] = {mesh.origin[b][0] - dx, mesh.origin[b][1] - dy};
                }
            }
    }
    for (Node& node : mesh.nodes) {
        const auto [x, y] = mesh.origin[static_cast<std::size_t>(node.slab)];
        Rectangle& r = node.tributary;
        r = {r.x0 + x, r.x1 + x, r.y0 + y, r.y1 + y};
    }
}

}  // namespace

Mesh makeMesh(const Problem& problem) {
    Mesh mesh;
    for (std::size_t s = 0; s < problem.slabs.size(); ++s)
        addSlab(mesh, problem.slabs[s], static_cast<int>(s));
    mesh.first.push_back(mesh.count());
    for (int j = 1; j <= static_cast<int>(problem.joints.size()); ++j) addJoint(mesh, problem, j);
    place(mesh, problem);
    return mesh;
}

double bytesNeeded(const Problem& problem) {
    double nodes = 0;
    for (const Slab& slab : problem.slabs) nodes += static_cast<double>(slab.X.size() * slab.Y.size());
    const double results = nodes * 300 * static_cast<double>(problem.groups.size() * problem.FSAF.size());
    // Dense: flexibility of plate and ground, two factors. Sparse: matrices and factors grow with n log n.
    if (problem.foundation.kind != FoundationKind::Liquid) return 4 * 8 * nodes * nodes + results;
    return 12000 * nodes + results;
}

}  // namespace plate

#include "solvers/plate/contact.h"

#include <algorithm>
#include <cmath>

namespace plate {
namespace {

// Forces and distances count as 0 when smaller than this part of the largest.
constexpr double nothing = 1e-10;

class Contact {
  public:
    Contact(System& system, const Structure& structure, const Start& start, const Vector& f)
        : system_(system), structure_(structure), start_(start), f_(f) {}

    ContactResult run(const std::vector<char>& apart, int NCYCLE) {
        for (char a : apart) result_.state.contact.push_back(!a);
        result_.state.bar.assign(structure_.looseBars().size(), 0);
        for (std::size_t b = 0; b < result_.state.bar.size(); ++b)
            result_.state.bar[b] = signOf(start_.barForce(static_cast<Eigen::Index>(b)));
        if (NCYCLE == 1)
            solve();
        else {
            rule(NCYCLE);
            check();
        }
        return std::move(result_);
    }

  private:
    static signed char signOf(double x) { return static_cast<signed char>((x > 0) - (x < 0)); }

    State& state() { return result_.state; }
    ContactReport& report() { return result_.report; }
    Response& response() { return result_.response; }
    int touching() { return static_cast<int>(std::count(state().contact.begin(), state().contact.end(), 1)); }

    /// Solves with the nodes as they are, the bars until they agree. A bar whose slip turns within
    /// one step opens first, so that no bar jumps from side to side.
    void solve() {
        for (int pass = 0; pass < 100; ++pass) {
            response() = system_.solve(start_, state(), f_);
            if (!response().supported || !changeBars()) return;
        }
        report().settled = false;
    }

    bool changeBars() {
        bool changed = false;
        for (std::size_t b = 0; b < state().bar.size(); ++b) {
            const auto i = static_cast<Eigen::Index>(b);
            const LooseBar& bar = structure_.looseBars()[b];
            const double slip = response().slip(i), force = response().barForce(i);
            signed char& is = state().bar[b];
            const double slack = nothing * bar.play;
            const auto now =
                is != 0 ? (is * force < -slack * bar.stiffness ? static_cast<signed char>(0) : is)
                        : (std::abs(slip) > bar.play + slack ? signOf(slip) : static_cast<signed char>(0));
            changed = changed || now != is;
            is = now;
        }
        return changed;
    }

    std::vector<std::size_t> wrongNodes(bool returning) {
        const double force = nothing * response().reaction.cwiseAbs().maxCoeff();
        const double distance =
            nothing * (structure_.areas().transpose() * response().d).cwiseAbs().maxCoeff();
        std::vector<std::size_t> wrong;
        for (std::size_t n = 0; n < state().contact.size(); ++n) {
            const auto i = static_cast<Eigen::Index>(n);
            if (state().contact[n] ? response().reaction(i) < -force
                                   : returning && response().opening(i) < -distance)
                wrong.push_back(n);
        }
        return wrong;
    }

    void rule(int NCYCLE) {
        for (report().cycles = 1;; ++report().cycles) {
            solve();
            if (!response().supported) {
                report().restarted = true;
                break;
            }
            const auto tension = wrongNodes(false);
            if (tension.empty()) break;
            if (report().cycles == NCYCLE) {
                report().ranOut = true;
                break;
            }
            for (std::size_t n : tension) state().contact[n] = 0;
        }
        report().byRule = touching();
    }

    void check() {
        report().checked = true;
        const State ruled = state();
        if (!response().supported) {
            std::fill(state().contact.begin(), state().contact.end(), 1);
            solve();
        }
        std::size_t fewest = state().contact.size() + 1;
        int patience = 5;
        const std::size_t limit = 20 * state().contact.size() + 100;
        for (std::size_t pass = 0; response().supported; ++pass) {
            const auto wrong = wrongNodes(true);
            if (wrong.empty()) break;
            if (pass == limit) {
                report().settled = false;
                break;
            }
            if (wrong.size() < fewest) {
                fewest = wrong.size();
                patience = 5;
            } else
                --patience;
            const State before = state();
            if (patience >= 0)
                for (std::size_t n : wrong) flip(n);
            else
                flip(wrong.back());
            solve();
            if (!response().supported && wrong.size() > 1) {  // too many at once
                state() = before;
                flipGently(wrong);
            }
        }
        for (std::size_t n = 0; n < ruled.contact.size(); ++n) {
            report().returned += state().contact[n] && !ruled.contact[n];
            report().released += !state().contact[n] && ruled.contact[n];
        }
        report().afterCheck = touching();
    }

    void flip(std::size_t n) { state().contact[n] = !state().contact[n]; }

    /// Of the nodes that were wrong only those that return, or else one of them.
    void flipGently(const std::vector<std::size_t>& wrong) {
        const State before = state();
        for (std::size_t n : wrong) state().contact[n] = 1;
        if (state() == before) flip(wrong.front());
        solve();
    }

    System& system_;
    const Structure& structure_;
    const Start& start_;
    const Vector& f_;
    ContactResult result_;
};

}  // namespace

ContactResult findContact(System& system, const Structure& structure, const Start& start, const Vector& f,
                          const std::vector<char>& apart, int NCYCLE) {
    return Contact(system, structure, start, f).run(apart, NCYCLE);
}

}  // namespace plate

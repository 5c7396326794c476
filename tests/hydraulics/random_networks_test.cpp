// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "model/invariants.h"
#include "support/network_run.h"

namespace idrova {
namespace {

using testing::IsEmpty;

/// A plant drawn at random: a tree, loops, parallel pipes, heights, pumps and losses; at each loose
/// end a pressure or a flow is given. Now and then the given values stand anywhere, so that the
/// system may be singular.
class RandomNetwork {
  public:
    explicit RandomNetwork(std::uint32_t seed) : random_(seed) {
        const bool gas = Chance(4);
        const int points = Whole(2, kMostPoints);
        for (int i = 1; i <= points; ++i) network_.AddPoint(i, 1);
        for (int i = 2; i <= points; ++i) Connect(Whole(1, i - 1), i);
        for (int i = Whole(0, points / 2); i > 0; --i) Connect(Whole(1, points), Whole(1, points));
        SetHeights(points, gas);
        if (Chance(8)) {
            GiveAnything();
        } else {
            GiveAtLooseEnds(gas);
        }
        SetFluid(gas);
    }

    NetworkBuilder Take() { return std::move(network_); }

  private:
    static constexpr int kMostPoints = 25;  // behind them the cut pipes' components, in one row

    int Whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    bool Chance(int of) { return Whole(1, of) == 1; }
    float Real(double from, double to) {
        return static_cast<float>(std::uniform_real_distribution<double>(from, to)(random_));
    }

    void Connect(int start, int end) {
        if (start == end) return;
        if (Chance(8)) {
            AddCutPipe(start, end);
        } else {
            AddPipe(start, end);
        }
    }

    void AddPipe(int start, int end) {
        const float length = std::pow(10.0F, Real(0, 3));
        const int pipe = network_.AddPipe(start, end, length, Real(0.02, 0.3));
        if (Chance(2)) network_->Pipes[pipe].FlowFromPoint = static_cast<std::int16_t>(end);
        ++degree_[start];
        ++degree_[end];
    }

    void AddCutPipe(int start, int end) {
        const int column = kMostPoints + ++cuts_;
        const int a = network_.AddPoint(column, 1);
        const int b = network_.AddPoint(column, 1);
        AddPipe(start, a);
        AddPipe(b, end);
        degree_[a] = degree_[b] = 0;
        CellRec& cell = network_.AddComponent(a, Chance(2) ? CellKind::Pump : CellKind::Loss);
        cell.Placed = !Chance(5);
        cell.Direction = Chance(2) ? 1.0F : 3.0F;
        if (cell.Kind == CellKind::Pump) {
            cell.Param1 = -Real(0, 5000);
            cell.PumpConstant = Real(1e4, 5e5);
        } else {
            (Chance(4) ? cell.Param2 : cell.Param1) = Real(0, 20);
        }
    }

    void SetHeights(int points, bool gas) {
        std::vector<std::int16_t> height(kMaxPoints + 1);
        if (!gas && Chance(2)) {
            for (int i = 1; i <= points; ++i) height[i] = static_cast<std::int16_t>(Whole(0, 20));
        }
        for (int i = 1; i <= network_->numtubo; ++i) {
            PipeRec& pipe = network_->Pipes[i];
            pipe.Z1 = height[pipe.StartPoint];
            pipe.Z2 = height[pipe.EndPoint];
        }
    }

    void GiveAtLooseEnds(bool gas) {
        bool first = true;
        for (int i = 1; i <= network_->numtubo; ++i) {
            const PipeRec pipe = network_->Pipes[i];
            for (const int end : {pipe.StartPoint, pipe.EndPoint}) {
                if (degree_[end] != 1) continue;
                if (first || Chance(3) || !network_->FlowUnknown[i]) {
                    network_.SetPressure(end, gas ? Real(1e5, 4e5) : Real(0, 6e5));
                } else {
                    network_.SetFlow(i, gas ? Real(0, 0.05) : Real(0, 5));
                }
                first = false;
            }
        }
    }

    void GiveAnything() {
        for (const auto& [point, pipes] : degree_) {
            if (pipes != 1) continue;
            if (Chance(2)) {
                network_.SetPressure(Whole(1, network_->npres), Real(0, 6e5));
            } else {
                network_.SetFlow(Whole(1, network_->numtubo), Real(-5, 5));
            }
        }
    }

    void SetFluid(bool gas) {
        if (!gas) return;
        network_->FluidDensity = 1.29;
        network_->FluidViscosity = 1.8e-5;
        network_->FluidCompressibility = 1;
        network_->EquationType = Equation::Compressible;
    }

    std::mt19937 random_;
    NetworkBuilder network_;
    std::map<int, int> degree_;
    int cuts_ = 0;
};

TEST(RandomNetworks, EndWithASolutionOrSayThatTheyDoNot) {
    std::map<RunEnd, int> ends;
    for (std::uint32_t seed = 1; seed <= 500; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        NetworkBuilder network = RandomNetwork(seed).Take();
        const NetworkRun run(network, seed);
        ++ends[run.outcome.end];
        EXPECT_LE(run.outcome.passes[0], 51);
        EXPECT_LE(run.outcome.passes[1], 51);
        EXPECT_THAT(BrokenInvariants(*network), IsEmpty());
        if (run.outcome.end == RunEnd::Settled) {
            EXPECT_THAT(BrokenLaws(*network, *run.work), IsEmpty());
        }
        const bool stored = run.outcome.end != RunEnd::Refused &&
                            run.outcome.end != RunEnd::Empty &&
                            run.outcome.end != RunEnd::NotFinite;
        EXPECT_EQ(run.reports, stored ? 1 : 0);
    }
    EXPECT_GT(ends[RunEnd::Settled], 400);
    EXPECT_GT(ends[RunEnd::Singular], 0);
}

}  // namespace
}  // namespace idrova

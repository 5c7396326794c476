// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

#include "hydraulics/law_check.h"
#include "support/network_run.h"

namespace idrova {
namespace {

using testing::IsEmpty;

constexpr double kWater = 0.001;  ///< Pa s

/// A plant drawn at random: a tree, loops, parallel pipes, heights, pumps and losses; at each loose
/// end a pressure or a flow is given. Now and then the given values stand anywhere, so that the
/// system may be singular.
class RandomNetwork {
  public:
    RandomNetwork(std::uint32_t seed, double viscosity) : random_(seed) {
        gas_ = Chance(4) && viscosity == kWater;
        network->settings.FluidViscosity = viscosity;
        level_ = gas_ || Chance(2);
        vertical_ = Chance(2);
        if (gas_) MakeAir(*network);
        const int points = Whole(2, Chance(4) ? 2 : 24);
        for (int i = 1; i <= points; ++i) AddPoint(i);
        for (int i = 2; i <= points; ++i) Connect(Whole(1, i - 1), i);
        for (int i = Whole(0, points / 2); i > 0; --i) Connect(Whole(1, points), Whole(1, points));
        const bool anywhere = Chance(8);
        for (int i = 1; i <= network->numtubo; ++i) {
            const PipeRec ends = network->Pipes[i];
            for (const int end : {ends.StartPoint, ends.EndPoint}) {
                const int pipe = anywhere ? Whole(1, network->numtubo) : i;
                if (pipes_[end] == 1) Give(pipe, anywhere ? Whole(1, network->npres) : end);
            }
        }
    }

    NetworkBuilder network;

  private:
    int Whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    bool Chance(int of) { return Whole(1, of) == 1; }
    float Real(double from, double to) {
        return static_cast<float>(std::uniform_real_distribution<double>(from, to)(random_));
    }

    /// In one row or column, so that every pipe is straight.
    int AddPoint(int place) {
        const int point = vertical_ ? network.AddPoint(1, place) : network.AddPoint(place, 1);
        height_[point] = static_cast<std::int16_t>(level_ ? 0 : Whole(0, 20));
        return point;
    }

    void Connect(int start, int end) {
        if (start == end) return;
        if (!Chance(8)) return AddPipe(start, end);
        const int place = 50 - cuts_++;
        const int a = AddPoint(place);
        const int b = AddPoint(place);
        height_[b] = height_[a];
        AddPipe(start, a);
        AddPipe(b, end);
        pipes_[a] = pipes_[b] = 0;
        CellRec& cell = network.AddComponent(a, Chance(2) ? CellKind::Pump : CellKind::Loss);
        cell.Placed = !Chance(5);
        cell.Direction = static_cast<Delivery>(vertical_ ? Whole(1, 2) * 2 : Whole(0, 1) * 2 + 1);
        if (cell.Kind == CellKind::Pump) {
            cell.Param1 = -Real(0, 5000);
            cell.PumpConstant = Real(1e4, 5e5);
        } else {
            (Chance(4) ? cell.Param2 : cell.Param1) = Real(0, 20);
        }
    }

    void AddPipe(int start, int end) {
        const float length = std::pow(10.0F, Real(0, 3));
        PipeRec& pipe = network->Pipes[network.AddPipe(start, end, length, Real(0.02, 0.3))];
        if (Chance(2)) pipe.FlowFromPoint = pipe.EndPoint;
        pipe.Z1 = height_[start];
        pipe.Z2 = height_[end];
        ++pipes_[start];
        ++pipes_[end];
    }

    void Give(int pipe, int point) {
        if (given_++ == 0 || Chance(3) || !network->FlowUnknown[pipe]) {
            network.SetPressure(point, gas_ ? Real(1e5, 4e5) : Real(0, 6e5));
        } else {
            network.SetFlow(pipe, gas_ ? Real(0, 0.05) : Real(-1, 5));
        }
    }

    std::mt19937 random_;
    bool gas_ = false, level_ = false, vertical_ = false;
    int cuts_ = 0, given_ = 0;
    std::map<int, int> pipes_;  ///< that meet in each point
    std::map<int, std::int16_t> height_;
};

/// What the flows of two runs differ by, of the largest.
double Apart(const NetworkRun& run, const NetworkRun& other) {
    double largest = 0;
    double apart = 0;
    for (int i = 1; i <= run.work->WorkPipeCount; ++i) {
        largest = std::max(largest, std::abs(run.Flow(i)));
        apart = std::max(apart, std::abs(run.Flow(i) - other.Flow(i)));
    }
    return apart / std::max(largest, 1e-30);
}

TEST(RandomNetworks, EndWithTheOneSolutionOrSayWhyNot) {
    std::map<RunEnd, int> ends;
    for (const double viscosity : {kWater, 0.01, 0.05, 0.2, 1.0}) {
        for (std::uint32_t seed = 1; seed <= 200; ++seed) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << viscosity << " Pa s");
            RandomNetwork drawn(seed, viscosity);
            const NetworkRun run(drawn.network, seed);
            const RunEnd end = run.outcome.end;
            ++ends[end];
            if (end != RunEnd::Settled) continue;
            EXPECT_THAT(LawCheck(*drawn.network, *run.work).Faults(), IsEmpty());
            RandomNetwork same(seed, viscosity);
            const NetworkRun other(same.network, seed + 1000);
            EXPECT_LE(Apart(run, other), 2e-7) << "the start values can be seen";
        }
    }
    EXPECT_GT(ends[RunEnd::Settled], 840);
    EXPECT_GT(ends[RunEnd::Singular], 100);
    EXPECT_LE(ends[RunEnd::Unsettled], 2) << "gases that would fall below a vacuum";
}

}  // namespace
}  // namespace idrova

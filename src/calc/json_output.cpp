// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/json_output.h"

#include <nlohmann/json.hpp>

#include "base/number_text.h"
#include "hydraulics/run_results.h"
#include "results/report_figures.h"

namespace idrova {
namespace {

using Json = nlohmann::ordered_json;

std::string OutcomeName(RunEnd end) {
    switch (end) {
        case RunEnd::Refused:
            return "refused";
        case RunEnd::Empty:
            return "empty";
        case RunEnd::Stopped:
            return "stopped";
        case RunEnd::Settled:
            return "settled";
        case RunEnd::Unsettled:
            return "unsettled";
        case RunEnd::Singular:
            return "singular";
        case RunEnd::NotFinite:
            return "not finite";
    }
    return "";
}

std::string IconName(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::None:
            return "none";
        case BoxIcon::Information:
            return "information";
        case BoxIcon::Exclamation:
            return "exclamation";
        case BoxIcon::Critical:
            return "critical";
        case BoxIcon::Question:
            return "question";
    }
    return "";
}

Json NoteList(const std::vector<Note>& notes) {
    Json list = Json::array();
    for (const Note& note : notes) {
        Json item = {{"text", note.text}};
        if (note.on == NoteOn::Pipe) item["pipe"] = note.number;
        if (note.on == NoteOn::Point) item["point"] = note.number;
        if (note.on == NoteOn::Cell) item["cell"] = note.number;
        if (note.on == NoteOn::Row) item["row"] = note.number;
        list.push_back(item);
    }
    return list;
}

Json MessageList(const std::vector<MessageBox>& messages) {
    Json list = Json::array();
    for (const MessageBox& box : messages) {
        list.push_back({{"title", box.title}, {"text", box.text}, {"icon", IconName(box.icon)}});
    }
    return list;
}

Json PipeList(const WorkNetwork& results, const Settings& settings) {
    Json list = Json::array();
    for (const auto& [number, pipe] : DrawnPipes(results)) {
        const PipeFigures figures = FiguresOf(pipe, results, settings);
        const int direction = pipe.DirectionSign();
        list.push_back({{"number", number},
                        {"from", direction > 0 ? pipe.StartPoint : pipe.EndPoint},
                        {"to", direction > 0 ? pipe.EndPoint : pipe.StartPoint},
                        {"flow_kg_s", DecimalDouble(pipe.FlowRate)},
                        {"velocity_m_s", figures.speed},
                        {"reynolds", figures.reynolds},
                        {"drop_Pa", direction * DecimalDouble(figures.drop)},
                        {"known", !results.WorkFlowUnknown[number]}});
    }
    return list;
}

Json PointList(const WorkNetwork& results) {
    Json list = Json::array();
    for (const auto& [number, point] : DrawnPoints(results)) {
        list.push_back({{"number", number},
                        {"pressure_Pa", DecimalDouble(point.Pressure)},
                        {"known", !results.WorkPressureUnknown[number]}});
    }
    return list;
}

Json PumpList(const WorkNetwork& results) {
    Json list = Json::array();
    for (const auto& [number, cell] : results.WorkComponents) {
        if (!HoldsComponent(cell, CellKind::Pump)) continue;
        list.push_back({{"cell", number},
                        {"name", cell.Name},
                        {"flow_kg_s", DecimalDouble(cell.Result)},
                        {"in_range", IsInRange(cell)}});
    }
    return list;
}

}  // namespace

std::string JsonText(const JsonContent& content, bool oneLine) {
    const RunRecord& run = content.run;
    const Outcome& outcome = run.outcome;
    Json json = {{"project", content.project},
                 {"outcome", OutcomeName(outcome.end)},
                 {"passes", outcome.passes},
                 {"residual", outcome.residual},
                 {"worst_pipe", outcome.worstPipe},
                 {"notes", NoteList(outcome.notes)},
                 {"messages", MessageList(content.messages)},
                 {"pipes", Json::array()},
                 {"points", Json::array()},
                 {"pumps", Json::array()}};
    for (const VariantChange& change : content.changes) json["set"][change.text] = change.value;
    if (run.results) {
        json["pipes"] = PipeList(*run.results, run.settings);
        json["points"] = PointList(*run.results);
        json["pumps"] = PumpList(*run.results);
    }
    return json.dump(oneLine ? -1 : 2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace idrova

#include "base/json_text.h"
#include "replay/record_fields.h"

namespace quorrin {

namespace {

// The rows of a table whose rows and columns count from 1, as a list of lists.
template <typename Rows>
FieldPrinter rowsPrinter(const Rows& rows) {
    return [&rows](std::string& out) {
        out += '[';
        for (std::size_t i = 1; i < rows.size(); ++i) {
            if (i > 1) out += ", ";
            appendList(out, rows[i], 1);
        }
        out += ']';
    };
}

// [x, y, count] of the cells that are not zero, by x, then y.
FieldPrinter gridPrinter(const MapValues& map) {
    return [&map](std::string& out) {
        out += '[';
        bool first = true;
        for (std::size_t x = 1; x <= kGridCells; ++x) {
            for (std::size_t y = 1; y <= kGridCells; ++y) {
                const auto count = map.certaintyGrid[x][y];
                if (count == 0) continue;
                out += first ? "[" : ", [";
                first = false;
                appendWhole(out, static_cast<std::int64_t>(x));
                out += ", ";
                appendWhole(out, static_cast<std::int64_t>(y));
                out += ", ";
                appendWhole(out, count);
                out += ']';
            }
        }
        out += ']';
    };
}

FieldPrinter sectorCellsPrinter(const MapValues& map) {
    return [&map](std::string& out) {
        out += '[';
        rowsPrinter(map.sectorCells[0])(out);
        out += ", ";
        rowsPrinter(map.sectorCells[1])(out);
        out += ']';
    };
}

// A 16-bit truth value: all ones is true. Anything else that is not 0 is no truth, and prints as it is.
FieldPrinter truthPrinter(const Integer& value) {
    return [&value](std::string& out) {
        if (value == 0 || value == -1) {
            appendBoolean(out, value != 0);
        } else {
            appendWhole(out, value.value());
        }
    };
}

}  // namespace

#define QUORRIN_FIELD(field) table.add(#field, values.field)

// Pose, landmarks, map, and what navigation commands.
void addNavigationFields(FieldTable& table, const PublicValues& values) {
    QUORRIN_FIELD(robotX);
    QUORRIN_FIELD(robotY);
    QUORRIN_FIELD(robotTheta);
    QUORRIN_FIELD(thetaStep);
    QUORRIN_FIELD(lostFixCount);
    QUORRIN_FIELD(landmarkRunEnabled);
    QUORRIN_FIELD(landmarkLocked);
    QUORRIN_FIELD(landmarkSelectPending);
    table.addPrinter("landmarkHold", truthPrinter(values.landmarkHold));
    table.addPrinter("landmarkPos", rowsPrinter(values.landmarkPos));
    table.addList("landmarkRangeA", values.landmarkRangeA, 1);
    table.addList("landmarkRangeB", values.landmarkRangeB, 1);
    QUORRIN_FIELD(landmarkCount);
    table.addPrinter("landmarkPairTable", rowsPrinter(values.landmarkPairTable));
    QUORRIN_FIELD(pairA1);
    QUORRIN_FIELD(pairA2);
    QUORRIN_FIELD(pairB1);
    QUORRIN_FIELD(pairB2);
    QUORRIN_FIELD(zoneRow);
    QUORRIN_FIELD(zoneChangeCount);

    table.addPrinter("certaintyGrid", gridPrinter(values));
    table.addList("polarHistogram", values.polarHistogram, 1);
    table.addList("binaryHistogram", values.binaryHistogram, 1);
    table.addPrinter("sectorCells", sectorCellsPrinter(values));

    QUORRIN_FIELD(wheelCmdLeft);
    QUORRIN_FIELD(wheelCmdRight);
    QUORRIN_FIELD(vfhActive);
    QUORRIN_FIELD(reverseDrive);
    QUORRIN_FIELD(inStuck);
    QUORRIN_FIELD(stuckLeft);
    QUORRIN_FIELD(stuckRight);
    QUORRIN_FIELD(antiStuckEnabled);
    QUORRIN_FIELD(stuckRatioLimit);
    QUORRIN_FIELD(finishCount);
    QUORRIN_FIELD(displayHeadingDeg);
}

#undef QUORRIN_FIELD

}  // namespace quorrin

#pragma once
// A saved input file with a small network, and the schematic window opened on it.
#include "network_records.h"
#include "plots/schematic_window.h"
#include "support/ui_fixture.h"

#include <QTest>

namespace brooklet::test {

class SchematicTest : public UiTest {
protected:
    SchematicTest() { startMain(); }

    // Saves an input file of these reach and sub-area records as the current file.
    void saveFile(const std::vector<std::string>& reaches, const std::vector<std::string>& subAreas = {}) {
        std::vector<std::string> lines = {"Brooklet: Version 1.0", "SCHEMATIC TEST", "", "STREAM REACH:"};
        lines.insert(lines.end(), reaches.begin(), reaches.end());
        lines.push_back("");
        if (!subAreas.empty()) {
            lines.push_back("SUB-AREA:");
            lines.insert(lines.end(), subAreas.begin(), subAreas.end());
            lines.push_back("");
        }
        file = folder.file("shed.inp");
        writeBytes(file, crlf(lines));
        session().CurrentFile = file;
    }
    // The network of the tool tests: three reaches and two sub-areas.
    void saveSmallNetwork() {
        saveFile({reach("R1", "OUTLET"), reach("R2", "R1"), reach("DAM", "R1", "STR1"), splitFlow("R2")},
                 {subArea("S1", "R2"), subArea("S2", "DAM")});
    }
    // Opens the window as the View menu does, and lets it activate.
    frmTopoModel* open() {
        QWidget* window = context->windows.ShowWindowAtOrigin("frmTopoModel");
        auto* schematic = qobject_cast<frmTopoModel*>(window);
        if (schematic) {
            schematic->resize(800, 600);
            schematic->Form_Activate();
        }
        return schematic;
    }
    QWidget* surface(frmTopoModel* window) { return control<QWidget>(window, "TopoPic"); }
    QAction* item(frmTopoModel* window, const QString& name) { return control<QAction>(window, name); }
    // The surface's point of a drawing-unit place.
    QPoint pixelOf(frmTopoModel* window, double x, double y) {
        const SurfaceScale& scale = window->schematic().scale();
        return QPointF(scale.toPixelX(x), scale.toPixelY(y)).toPoint();
    }

    std::string file;
};

} // namespace brooklet::test

#include "plots/schematic_drawing.h"
#include "schematic_fixture.h"

#include <QAction>
#include <QDomDocument>
#include <QImage>

namespace brooklet::test {
namespace {

class SchematicExportTest : public SchematicTest {
protected:
    SchematicExportTest() {
        saveSmallNetwork();
        window = open();
    }
    // Saves through File, Save As with the name given in the dialog.
    void saveAs(const std::string& name) {
        platform.savePicks.push_back(folder.file(name));
        control<QAction>(window, "mnuSaveAs")->trigger();
    }
    // Every text of an SVG file, in order.
    QStringList svgTexts(const std::string& path) {
        QDomDocument document;
        EXPECT_TRUE(document.setContent(QByteArray::fromStdString(bytesOf(path))));
        QStringList texts;
        const QDomNodeList nodes = document.elementsByTagName("text");
        for (int i = 0; i < nodes.size(); ++i)
            texts << nodes.at(i).toElement().text();
        return texts;
    }
    frmTopoModel* window = nullptr;
};

TEST_F(SchematicExportTest, AnExistingFileIsReplacedOnlyWhenTheUserConfirms) {
    writeBytes(folder.file("keep.png"), "the user's own picture");
    platform.answers.push_back(BoxAnswer::No);
    saveAs("keep.png");
    ASSERT_EQ(platform.saveDialogs.size(), 1u);
    EXPECT_TRUE(platform.saveDialogs[0].ConfirmOverwrite);
    EXPECT_EQ(bytesOf(folder.file("keep.png")), "the user's own picture");
    platform.answers.push_back(BoxAnswer::Yes);
    saveAs("keep.png");
    EXPECT_NE(bytesOf(folder.file("keep.png")), "the user's own picture");
}

TEST_F(SchematicExportTest, TheDialogOffersTheThreeFormats) {
    platform.savePicks.push_back(std::nullopt);
    control<QAction>(window, "mnuSaveAs")->trigger();
    ASSERT_EQ(platform.saveDialogs.size(), 1u);
    EXPECT_EQ(platform.saveDialogs[0].DialogTitle, "Save Schematic As");
    EXPECT_EQ(platform.saveDialogs[0].Filter,
              "PNG Picture (*.png)|*.png|SVG Drawing (*.svg)|*.svg|PDF Document (*.pdf)|*.pdf");
    EXPECT_EQ(platform.saveDialogs[0].FileName, folder.file("shed.png"));
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(SchematicExportTest, AnSvgFileKeepsEveryLabelAsText) {
    main->resize(900, 600);
    window->Form_Activate();
    ASSERT_GE(window->width() * 15, 8000);
    saveAs("shed.svg");
    const QStringList texts = svgTexts(folder.file("shed.svg"));
    for (const char* name : {"OUTLET", "R1", "R2", "DAM", "S1", "S2"})
        EXPECT_TRUE(texts.contains(name)) << name << ": " << texts.join('|').toStdString();
    EXPECT_TRUE(texts.contains("  = Channel Reach")) << texts.join('|').toStdString();
    EXPECT_TRUE(texts.contains("  = Diversion"));
    // Pictures and lines are drawn as shapes, not as pictures of pixels.
    const std::string svg = bytesOf(folder.file("shed.svg"));
    EXPECT_NE(svg.find("<path"), std::string::npos);
    EXPECT_EQ(svg.find("<image"), std::string::npos);
}

TEST_F(SchematicExportTest, ANarrowWindowsLegendHasTheShortWords) {
    // The window takes the main window's size at its activation.
    main->resize(500, 400);
    window->Form_Activate();
    ASSERT_EQ(window->width(), 500);
    saveAs("narrow.svg");
    const QStringList texts = svgTexts(folder.file("narrow.svg"));
    for (const char* word : {"  = Ch.Rch", "  = St.Rch", "  = Outlet", "  = Sub-Area", "  = Div."})
        EXPECT_TRUE(texts.contains(word)) << word << ": " << texts.join('|').toStdString();
}

TEST_F(SchematicExportTest, LabelsAndLegendOffLeaveNoText) {
    control<QAction>(window, "mnuLabels")->trigger();
    control<QAction>(window, "mnuLegend")->trigger();
    saveAs("bare.svg");
    EXPECT_EQ(svgTexts(folder.file("bare.svg")), QStringList());
}

TEST_F(SchematicExportTest, APngFileIsTheSurfaceOnWhite) {
    saveAs("shed.png");
    QImage image;
    ASSERT_TRUE(image.loadFromData(QByteArray::fromStdString(bytesOf(folder.file("shed.png")))));
    EXPECT_EQ(image.size(), surface(window)->size());
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() - 2), QColor(Qt::white));
}

TEST_F(SchematicExportTest, ANameWithoutAKnownExtensionBecomesAPngFile) {
    saveAs("report");
    EXPECT_EQ(bytesOf(folder.file("report.png")).substr(1, 3), "PNG");
}

TEST_F(SchematicExportTest, APdfFileIsWritten) {
    saveAs("shed.pdf");
    const std::string bytes = bytesOf(folder.file("shed.pdf"));
    EXPECT_EQ(bytes.substr(0, 5), "%PDF-");
    EXPECT_NE(bytes.find("/Font"), std::string::npos); // the labels are text in a font
}

TEST_F(SchematicExportTest, AFileThatCannotBeWrittenSaysSo) {
    const std::string path = folder.file("missing folder/shed.svg");
    platform.savePicks.push_back(path);
    control<QAction>(window, "mnuSaveAs")->trigger();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].text.rfind("The schematic could not be saved as " + path + " (", 0), 0u);
    EXPECT_EQ(platform.boxes[0].title, "Brooklet System");
}

} // namespace
} // namespace brooklet::test

#include "editing/help_windows.h"

#include "base/version.h"

#include "editing/widgets.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <cmath>
#include <vector>

namespace brooklet {

const char* const DisclaimerText =
    "Although the Brooklet system software has been tested by its developers, NO warranty, expressed or "
    "implied, is made as to the accuracy and functioning of the programs and related program material nor "
    "shall the fact of distribution constitute any such warranty, and NO responsibility is assumed by the "
    "developers in connection therewith.";

namespace {

QLabel* addLabel(QWidget* parent, QLayout* layout, const QString& name, const QString& text) {
    auto* label = new QLabel(text, parent);
    nameControl(label, name, text);
    label->setWordWrap(true);
    layout->addWidget(label);
    return label;
}

// ---- The diagram -------------------------------------------------------------------------------

enum class PartKind { Program, File };

struct Part {
    PartKind kind;
    QRectF place; // on a picture of 900 by 560
    const char* title;
    const char* detail;
};

const Part Parts[] = {
    {PartKind::File, {20, 30, 170, 74}, "Old input file", "(.dat)"},
    {PartKind::Program,
     {225, 30, 210, 74},
     "Input converter",
     "Flume_Converter.exe\nstarted by flumeConv.fil"},
    {PartKind::File, {470, 30, 170, 74}, "HEC-RAS output", "(.txt)"},
    {PartKind::Program,
     {675, 30, 205, 74},
     "HEC-RAS reformatter",
     "Flume_HECRAS_Rating.exe\nstarted by flume_HECRAS.fil"},
    {PartKind::File,
     {20, 235, 190, 100},
     "Work files",
     "temp folder, ~*.tmp\none file per section\nand ~filename.tmp"},
    {PartKind::Program,
     {330, 220, 240, 130},
     "Brooklet Controller / Editor",
     "entry windows, checks, help\nsection list, viewer\nplots and schematic"},
    {PartKind::File,
     {690, 235, 190, 100},
     "Result files",
     ".out printed page, .err\n.dbg, .hyd, .ecn FloodEcon"},
    {PartKind::File, {340, 445, 220, 80}, "Input file", "(.inp), one file\nof sections"},
    {PartKind::Program, {680, 435, 200, 100}, "Flume model", "flume.exe\nstarted by flume.fil"},
};

struct Arrow {
    QPointF from, to;
    const char* words;
    QPointF wordsAt;
};

const Arrow Arrows[] = {
    {{190, 67}, {225, 67}, "", {}},
    {{640, 67}, {675, 67}, "", {}},
    {{330, 104}, {400, 220}, "converted input file", {210, 170}},
    {{775, 104}, {510, 220}, "cross section records", {650, 170}},
    {{330, 260}, {210, 260}, "Accept", {240, 252}},
    {{210, 310}, {330, 310}, "load", {250, 330}},
    {{420, 350}, {420, 445}, "Save", {375, 400}},
    {{480, 445}, {480, 350}, "Open", {490, 400}},
    {{560, 485}, {680, 485}, "read by the model", {565, 478}},
    {{570, 340}, {700, 435}, "Run", {640, 380}},
    {{780, 435}, {780, 335}, "writes", {790, 390}},
    {{690, 285}, {570, 285}, "viewer, plots", {585, 277}},
};

const QSizeF Canvas(900, 560);

void drawPart(QPainter& painter, const Part& part) {
    const QRectF r = part.place;
    painter.setPen(QPen(Qt::black, 1.5));
    if (part.kind == PartKind::Program) {
        painter.setBrush(QColor(200, 225, 255));
        painter.drawRoundedRect(r, 10, 10);
    } else {
        // A sheet with a folded corner.
        const qreal fold = 14;
        QPainterPath sheet;
        sheet.moveTo(r.topLeft());
        sheet.lineTo(r.right() - fold, r.top());
        sheet.lineTo(r.right(), r.top() + fold);
        sheet.lineTo(r.bottomRight());
        sheet.lineTo(r.bottomLeft());
        sheet.closeSubpath();
        painter.setBrush(QColor(255, 250, 205));
        painter.drawPath(sheet);
        painter.drawLine(QPointF(r.right() - fold, r.top()), QPointF(r.right() - fold, r.top() + fold));
        painter.drawLine(QPointF(r.right() - fold, r.top() + fold), QPointF(r.right(), r.top() + fold));
    }
    QFont font = painter.font();
    font.setPixelSize(14);
    font.setBold(true);
    font.setItalic(false);
    painter.setFont(font);
    const QRectF titleArea(r.left() + 4, r.top() + 4, r.width() - 8, 20);
    painter.drawText(titleArea, Qt::AlignHCenter | Qt::AlignTop, part.title);
    font.setBold(false);
    font.setPixelSize(12);
    painter.setFont(font);
    painter.drawText(r.adjusted(4, 24, -4, -4), Qt::AlignHCenter | Qt::AlignTop, part.detail);
}

void drawArrow(QPainter& painter, const Arrow& arrow) {
    painter.setPen(QPen(QColor(40, 40, 120), 1.5));
    painter.drawLine(arrow.from, arrow.to);
    const QPointF d = arrow.to - arrow.from;
    const qreal length = std::hypot(d.x(), d.y());
    if (length > 0) {
        const QPointF unit = d / length;
        const QPointF normal(-unit.y(), unit.x());
        const QPointF base = arrow.to - unit * 10;
        painter.setBrush(QColor(40, 40, 120));
        painter.drawPolygon(QPolygonF({arrow.to, base + normal * 5, base - normal * 5}));
    }
    if (*arrow.words) {
        QFont font = painter.font();
        font.setPixelSize(12);
        font.setBold(false);
        font.setItalic(true);
        painter.setFont(font);
        painter.drawText(arrow.wordsAt, arrow.words);
    }
}

// The windows of text alone: name, caption and paragraphs.
struct TextWindow {
    const char* name;
    const char* caption;
    QStringList paragraphs;
};

const std::vector<TextWindow>& textWindows() {
    static const std::vector<TextWindow> windows = {
        {"frmOverview",
         "Overviews Help",
         {
             "Brooklet is the controller and editor of the Flume watershed model. The model, flume.exe, is a "
             "console program of its own: it reads one input file and leaves its results in files beside it. "
             "Brooklet prepares that input file, starts the model on it, waits for it, and shows what it "
             "wrote. "
             "Two more programs lie beside the model: the input converter, which turns input files of the "
             "model's "
             "older form into the current form, and the HEC-RAS reformatter, which turns HEC-RAS output into "
             "stream cross section records. Brooklet starts each of them the same way, through a small "
             "control "
             "file in the program folder that names the data file.",
             "The input file is organised in sections, one for each kind of data: the Brooklet "
             "identification "
             "(units and description), sub-areas, stream reaches, structure ratings, stream cross sections, "
             "storms, rainfall distributions, input hydrographs, the dimensionless unit hydrograph, "
             "alternates, "
             "and the run options (duration increment, time analysis, global output and verification). The "
             "main "
             "window lists the sections; an X in front of a section says that it holds data. Click a section "
             "to "
             "open its entry window, which lays out every field of the section with its label, unit and "
             "check, "
             "so the fixed columns of the file are never typed by hand.",
             "While you work, each section lives in a work file of its own in the temp folder. An entry "
             "window "
             "reads its work file when it opens and rewrites it when you click Accept Changes; No Changes "
             "leaves "
             "it as it was. File, Save joins the work files into the input file. The Run menu is offered for "
             "a "
             "named file with no unsaved changes, so the model always reads what you see. After a run the "
             "View "
             "menu shows the printed page, error, debug, hydrograph and FloodEcon files, the Plots menu "
             "draws "
             "hydrographs, peak flows and time analyses from the printed page file, and View, Schematic "
             "draws "
             "the network of sub-areas and reaches.",
         }},
        {"frmHelpFac",
         "Help Facilities Help",
         {
             "Every entry window explains its own fields. The heading at the top of a window and the labels "
             "in "
             "front of its fields can be clicked: a click opens the help box at the bottom of the window, "
             "with "
             "the title of the item, what it means and how the model uses it, and the range of values the "
             "window "
             "accepts, in the unit system of the file (English or metric, as chosen in the Brooklet "
             "Identifier "
             "window). Click the same label again to close the box; click another label to see its help "
             "instead. With the keyboard, press F1 in a field to toggle the help of its label.",
             "Fields are checked when you leave them with Tab or Enter. A field that passes turns light "
             "blue; a "
             "field that fails turns red and keeps the cursor, so it can be corrected at once. No message "
             "interrupts the typing, and Accept Changes writes what stands in the fields, red or not, so "
             "look "
             "for red fields before you accept.",
             "The Help menu of the main window offers: Brooklet System Diagram, a picture of the programs "
             "and the "
             "files between them; Overview, how the controller runs the programs and is organised by input "
             "sections; Help Facilities, this page; Getting Started, the first steps of editing, converting, "
             "reformatting and running; and About Controller / Editor, with the version and the disclaimer. "
             "The "
             "texts of the help box are kept in the file BrookletHelp.lst in the program folder.",
         }},
        {"frmGettingStarted",
         "Getting Started Help",
         {
             "Editing. Choose File, New Brooklet File to describe a new watershed, or File, Open Existing "
             "Brooklet "
             "File to open an input file (.inp). The Brooklet Identifier window opens first: choose the "
             "input and "
             "output units, which give every other window its unit words, and describe the watershed. Then "
             "click "
             "a section in the list of the main window to enter its data, and close each window with Accept "
             "Changes to keep what you entered or No Changes to drop it. File, Save writes the input file; "
             "File, "
             "ReOpen Last Session returns to the work of the last session, saved or not.",
             "Converting. An input file of the model's older form (.dat) is brought into the current form "
             "with "
             "File, Convert old Data. Pick the old file; the input converter writes an input file of the "
             "same "
             "name "
             "with the extension .inp, and Brooklet opens it as if you had opened it yourself. Look through "
             "the "
             "sections, then save.",
             "Reformatting. Stream cross sections computed with HEC-RAS are brought in with File, Import "
             "HEC-RAS. "
             "Pick the HEC-RAS output file (.txt); the HEC-RAS reformatter turns it into stream cross "
             "section "
             "records, which are added to the Stream Cross Section section of the session. Open that section "
             "to "
             "check the ratings, then save.",
             "Running. Save the input file first: the Run menu is offered only for a named file with no "
             "unsaved "
             "changes. Choose Run; the model works on the saved file, and when it ends Brooklet shows the "
             "printed "
             "page file, or the error file when the model reported errors. The View menu then lists the "
             "files "
             "that the run left, and the Plots menu draws hydrographs, peak flows and time analyses from the "
             "printed page file.",
         }},
    };
    return windows;
}

} // namespace

PlainHelpWindow::PlainHelpWindow(const QString& name, const QString& caption, QWidget* parent)
    : QWidget(parent) {
    setObjectName(name);
    setWindowTitle(caption);
    auto* layout = new QVBoxLayout(this);
    auto* cmdClose = new QPushButton("Close", this);
    nameControl(cmdClose, "cmdClose", "Close");
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    layout->addWidget(cmdClose, 0, Qt::AlignRight);
}

void PlainHelpWindow::addContent(QWidget* content) {
    static_cast<QVBoxLayout*>(layout())->insertWidget(layout()->count() - 1, content, 1);
}

frmAbout::frmAbout(AppContext&, QWidget* parent)
    : PlainHelpWindow("frmAbout", "About Brooklet System Controller / Editor", parent) {
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    QLabel* title = addLabel(content, layout, "lblTitle",
                             "Brooklet System Controller / Editor    \n32-bit Window Based Application");
    QFont font = title->font();
    font.setBold(true);
    font.setPointSize(font.pointSize() + 4);
    title->setFont(font);
    addLabel(
        content, layout, "lblDescription",
        "The Brooklet System Controller / Editor connects all the sytem software pieces (Flume model, input "
        "converter, and HEC-RAS reformatter) together.  It also allows entry or modification of Brooklet "
        "input data.");
    addLabel(content, layout, "lblVersion", "          Version - 1.00           Complied Date: 10/01/04");
    // The version of this build, beside the editor's own version line above.
    addLabel(content, layout, "lblProgramVersion",
             QString("Brooklet program version %1").arg(ProgramVersion));
    addLabel(content, layout, "lblDisclaimer", DisclaimerText);
    content->setMinimumWidth(520);
    addContent(content);
}

QStringList TextHelpWindow::names() {
    QStringList names;
    for (const TextWindow& window : textWindows())
        names << window.name;
    return names;
}

TextHelpWindow::TextHelpWindow(const QString& name, QWidget* parent)
    : PlainHelpWindow(name, QString(), parent) {
    for (const TextWindow& window : textWindows()) {
        if (name != window.name)
            continue;
        setWindowTitle(window.caption);
        auto* text = new QTextBrowser(this);
        nameControl(text, "txtHelpText", window.caption);
        QString html;
        for (const QString& paragraph : window.paragraphs)
            html += "<p>" + paragraph.toHtmlEscaped() + "</p>";
        text->setHtml(html);
        text->setMinimumSize(620, 380);
        addContent(text);
    }
}

DiagramPicture::DiagramPicture(QWidget* parent) : QWidget(parent) {
    nameControl(this, "picDiagram", "Brooklet System Diagram");
    setAccessibleDescription(partTitles().join(", "));
    setMinimumSize(Canvas.toSize() * 0.75);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Qt::white);
    setPalette(palette);
    setAutoFillBackground(true);
}

QStringList DiagramPicture::partTitles() {
    QStringList titles;
    for (const Part& part : Parts)
        titles << part.title;
    return titles;
}

QSize DiagramPicture::sizeHint() const {
    return Canvas.toSize();
}

void DiagramPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The picture keeps its proportions whatever the size of the window.
    const qreal scale = std::min(width() / Canvas.width(), height() / Canvas.height());
    painter.translate((width() - Canvas.width() * scale) / 2, (height() - Canvas.height() * scale) / 2);
    painter.scale(scale, scale);
    for (const Arrow& arrow : Arrows)
        drawArrow(painter, arrow);
    for (const Part& part : Parts)
        drawPart(painter, part);
}

frmDiagram::frmDiagram(AppContext&, QWidget* parent)
    : PlainHelpWindow("frmDiagram", "Brooklet System Diagram", parent) {
    addContent(new DiagramPicture(this));
}

} // namespace brooklet

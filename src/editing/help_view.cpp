#include "editing/help_view.h"

#include "editing/help_box.h"
#include "editing/widgets.h"
#include "session/section_table.h"

#include <QMouseEvent>

namespace brooklet {

HelpLabel::HelpLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {}

void HelpLabel::setAsksForHelp(bool asks) {
    asks_ = asks;
    setCursor(asks ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setToolTip(asks ? QStringLiteral("Click for help on this item; click again to hide it") : QString());
}

void HelpLabel::mousePressEvent(QMouseEvent* event) {
    if (asks_ && event->button() == Qt::LeftButton) {
        emit clicked();
        event->accept();
        return;
    }
    QLabel::mousePressEvent(event);
}

QPlainTextEdit* makeHelpBox(QWidget* parent) {
    auto* box = new QPlainTextEdit(parent);
    nameControl(box, "txtHelp", "Help");
    box->setReadOnly(true);
    QFont fixed("Monospace");
    fixed.setStyleHint(QFont::TypeWriter);
    box->setFont(fixed);
    box->setMinimumHeight(140);
    box->hide();
    return box;
}

void HideHelp(QPlainTextEdit* HelpBox) {
    HelpBox->clear();
    HelpBox->hide();
}

void ShowHelpItem(Session& session, int Index, QPlainTextEdit* HelpBox, const std::string& Code) {
    if (session.HelpShown >= 0)
        HideHelp(HelpBox);
    if (Index != session.HelpShown && Index >= 0) {
        std::string text = LoadHelpText(session.HelpShown, Index, Code, session);
        // The box breaks lines at a line feed alone.
        QString shown = fromBytes(text);
        shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        HelpBox->setPlainText(shown);
        HelpBox->show();
    } else {
        session.HelpShown = NoHelpShown;
    }
}

std::string helpBoxText(const QPlainTextEdit* HelpBox) {
    QString text = HelpBox->toPlainText();
    text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return toBytes(text);
}

} // namespace brooklet

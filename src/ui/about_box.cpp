#include "ui/about_box.h"

#include "document/windows/acerca.h"
#include "forms/acerca.h"
#include "ui/icons.h"

namespace velmora {

namespace {
constexpr double kNameSize = 1.8; ///< of the desktop's font
} // namespace

AboutBox::AboutBox(EventSink& events) : FormWindow(events) {
    ui.Image1->set_picture(app_icon());
    QFont font = ui.lblVelmora->font();
    font.setPointSizeF(font.pointSizeF() * kNameSize);
    font.setBold(true);
    ui.lblVelmora->setFont(font);
    bind();
    wire();
    list_controls(
        {"Image1", "lblVelmora", "lblVer", "SSPanel1", "lbl_web", "lbl_mail", "Command1"});
    ui.Command1->setFocus();
}

void AboutBox::bind() {
    bindings().label(*ui.lblVer, state::acerca.lblVer);
    // The names come when the box is up already; it grows to hold them, by nothing for none.
    bindings().shows<std::string>([] { return state::acerca.SSPanel1; },
                                  [this](const std::string& names) {
                                      ui.SSPanel1->setText(QString::fromStdString(names));
                                      ui.SSPanel1->setVisible(!names.empty());
                                      widget().adjustSize();
                                  });
}

void AboutBox::wire() {
    on_click(*ui.Command1, acerca_Command1_Click);
    connect(ui.lbl_web, &LinkLabel::clicked, this, [this] { events().run(acerca_lbl_web_Click); });
    connect(ui.lbl_mail, &LinkLabel::clicked, this,
            [this] { events().run(acerca_lbl_mail_Click); });
}

void AboutBox::Load() {
    acerca_Load();
}

void AboutBox::Activate() {
    acerca_Activate();
}

} // namespace velmora

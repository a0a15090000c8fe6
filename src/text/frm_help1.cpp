#include "text/frm_help1.h"

#include <QVBoxLayout>

#include "platform/print_text_box.h"
#include "platform/printer.h"
#include "platform/qt/menu_bar.h"
#include "store/store.h"
#include "text/manual.h"
#include "text/pages.h"

frmHelp1::frmHelp1(Program& program)
    : Form("frmHelp1"),
      program_(program),
      Label1(new Label("Label1", "Help", this)),
      txtHelp1(new HelpBox("txtHelp1", this)) {
    QFont heading = Label1->font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.4);
    Label1->setFont(heading);
    Label1->setAlignment(Qt::AlignCenter);
    txtHelp1->setAccessibleName("Manual");

    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(10, 10, 10, 10);
    page->addWidget(Label1);
    page->addWidget(txtHelp1, 1);
    page->setMenuBar(makeMenuBar({{"mnuPrint", "&Print", [this] { mnuPrint_Click(); }},
                                  {"mnuExit", "&Exit", [this] { program_.screens.unload(name()); }}},
                                 this));
}

void frmHelp1::Form_Load() {
    Store& store = program_.store;
    const int number = store.TableKind;
    const auto& sections = manualSections();
    if (number < 1 || number > static_cast<int>(sections.size()))
        throw RunTimeError(Fault::SubscriptOutOfRange, "section " + std::to_string(number));
    const ManualSection& section = sections[static_cast<std::size_t>(number - 1)];
    setCaption("TOLMARK Manual");
    Label1->setCaption(section.title);
    store.HelpText = textPage(section.page, store.NL);
    txtHelp1->setTextValue(store.HelpText);
    place();
    Show();
}

void frmHelp1::mnuPrint_Click() {
    program_.printer.FontSize = 10;
    PrintTextBox(program_.printer, txtHelp1->textValue());
}

void showManual(Program& program, int section) {
    program.screens.unload("frmHelp1");
    program.store.TableKind = section;
    program.screens.load("frmHelp1");
}

#include "platform/qt/form.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "platform/dialogs.h"
#include "platform/qt/dispatcher.h"

namespace {

constexpr int twipsPerPixel = 10;

}  // namespace

Form::Form(const std::string& name) { setObjectName(QString::fromStdString(name)); }

std::string Form::name() const { return objectName().toStdString(); }
std::string Form::caption() const { return windowTitle().toStdString(); }
void Form::setCaption(const std::string& caption) { setWindowTitle(QString::fromStdString(caption)); }

void Form::place(int heightTwips, int widthTwips) {
    const QSize first(qRound(widthTwips / double(twipsPerPixel)),
                      qRound(heightTwips / double(twipsPerPixel)));
    resize(first);
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    const QRect all = screen->geometry();
    const int left = all.left() + (all.width() - first.width()) / 2;
    const int top = all.top() + (all.height() - first.height()) / 2 - 200 / twipsPerPixel;
    // On a screen smaller than the form its upper left corner, with the frame, stays in reach.
    const QPoint corner = screen->availableGeometry().topLeft();
    move(std::max(left, corner.x()), std::max(top, corner.y()));
}

void Form::Show() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void Form::closeEvent(QCloseEvent* event) {
    bool leave = false;
    dispatch([&] {
        if (screens_) leave = queryUnload();
    });
    if (leave && screens_) screens_->release(*this);
    event->setAccepted(!screens_);  // also when it was unloaded by code, or unloaded itself when asked
}

std::string Form::missingControl(const std::string& name) const {
    std::string text = this->name() + " has no " + name + " of that kind; it has";
    for (const QWidget* child : findChildren<QWidget*>()) {
        const QString other = child->objectName();
        if (!other.isEmpty() && !other.startsWith("qt_")) text.append(" ").append(other.toStdString());
    }
    return text;
}

Screens::~Screens() {
    for (auto& [name, entry] : entries_) {
        if (entry.form) release(*entry.form);
    }
    for (const auto& form : leaving_) delete form.data();
}

void Screens::add(const std::string& name, Make make, const std::string& group) {
    entries_[name] = {std::move(make), group, nullptr};
}

Form* Screens::load(const std::string& name) {
    const auto found = entries_.find(name);
    if (found == entries_.end()) {
        dialogs_.MsgBox(notThereYet);
        return nullptr;
    }
    Entry& entry = found->second;
    if (!entry.group.empty() && !closeGroup(entry.group)) return nullptr;
    if (entry.form) return entry.form;

    auto form = entry.make();
    form->screens_ = this;
    entry.form = form.get();
    try {
        form->Form_Load();
    } catch (...) {
        if (entry.form == form.get()) entry.form = nullptr;
        if (!form->screens_) form.release();  // it had unloaded itself: it is deleted with the others
        throw;
    }
    form.release();
    return entry.form;
}

bool Screens::closeGroup(const std::string& group) {
    for (auto& [name, entry] : entries_) {
        if (entry.group != group || !entry.form) continue;
        entry.form->close();
        if (entry.form) return false;
    }
    return true;
}

void Screens::unload(const std::string& name) {
    Form* form = loaded(name);
    if (!form) return;
    release(*form);
    form->close();
}

Form* Screens::loaded(const std::string& name) const {
    const auto found = entries_.find(name);
    return found == entries_.end() ? nullptr : found->second.form;
}

void Screens::release(Form& form) {
    for (auto& [name, entry] : entries_) {
        if (entry.form == &form) entry.form = nullptr;
    }
    form.screens_ = nullptr;
    form.deleteLater();
    std::erase_if(leaving_, [](const auto& left) { return left.isNull(); });
    leaving_.emplace_back(&form);
}

void Screens::done(const std::string& form, const std::string& label) {
    if (Form* there = loaded(form)) there->control<StatusLabel>(label).done();
}

void Screens::input(const std::string& form, const std::string& label) {
    if (Form* there = loaded(form)) there->control<StatusLabel>(label).input();
}

void Screens::blueDefault(const std::string& form, const std::string& label) {
    if (Form* there = loaded(form)) there->control<StatusLabel>(label).blueDefault();
}

// A screen of the program, and the registry that loads screens by name.
//
// No form is a dialog: none is modal, and Enter and Esc belong to the form. A form
// is made by its loading and destroyed by its unloading; a form that is loaded
// while it is loaded stays the same object. A form may unload itself in its own
// handler: it disappears at once and is deleted when the handler has returned.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/controls.h"
#include "platform/run_time_error.h"

class Dialogs;
class Screens;

class Form : public QWidget {
    Q_OBJECT
  public:
    explicit Form(const std::string& name);

    std::string name() const;
    std::string caption() const;
    void setCaption(const std::string& caption);

    /// The form's size in twips (10 twips to a pixel) and its place: the middle of the screen, 200 twips up.
    void place(int heightTwips = 6450, int widthTwips = 9615);
    /// Shows the form in front of the others and gives it the keyboard.
    void Show();

    /// The control of that name. A missing name is InvalidCall and lists the names that exist.
    template <class Control>
    Control& control(const std::string& name) {
        if (auto* found = findChild<Control*>(QString::fromStdString(name))) return *found;
        throw RunTimeError(Fault::InvalidCall, missingControl(name));
    }

    /// What the form does when it is loaded, after its widgets exist. Runs once.
    virtual void Form_Load() = 0;
    /// Closing by the frame: false keeps the form open. The form's data are not stored.
    virtual bool queryUnload() { return true; }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    friend class Screens;
    std::string missingControl(const std::string& name) const;
    Screens* screens_ = nullptr;
};

/// All screens of the program by name.
class Screens {
  public:
    using Make = std::function<std::unique_ptr<Form>()>;

    /// The message for a screen that nobody has added.
    static constexpr const char* notThereYet = "This screen is not there yet.";

    explicit Screens(Dialogs& dialogs) : dialogs_(dialogs) {}
    ~Screens();
    Screens(const Screens&) = delete;

    /// `group`: of the forms of one group only one is open; loading one, be it the same again, first closes
    /// the open one as by its frame, since the same form may serve another table now. If that refuses to
    /// close, nothing is loaded.
    void add(const std::string& name, Make make, const std::string& group = "");

    /// Makes and loads the form, or gives the one that is loaded. A name nobody has added: the message
    /// `notThereYet`, and nullptr. nullptr also when the form unloaded itself while it loaded. A Form_Load
    /// that throws leaves no form behind.
    Form* load(const std::string& name);
    /// Without asking the form. Does nothing when it is not loaded.
    void unload(const std::string& name);
    /// The loaded form, or nullptr.
    Form* loaded(const std::string& name) const;

    /// Status words on another form; nothing happens when that form is not loaded.
    void done(const std::string& form, const std::string& label);
    void input(const std::string& form, const std::string& label);
    void blueDefault(const std::string& form, const std::string& label);

  private:
    struct Entry {
        Make make;
        std::string group;
        Form* form = nullptr;
    };
    friend class Form;
    bool closeGroup(const std::string& group);
    /// Takes the form out of the registry; it is deleted when the handler that runs has returned.
    void release(Form& form);

    Dialogs& dialogs_;
    std::map<std::string, Entry> entries_;
    std::vector<QPointer<Form>> leaving_;
};

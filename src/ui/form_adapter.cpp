#include "ui/form_adapter.h"

#include "runtime/error.h"
#include "toolkit/qt_text.h"
#include "ui/controls.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

namespace velmora {

namespace {

/// A control that is one piece: a name, at most one text and one tip.
class WidgetControl : public FormControl {
  public:
    explicit WidgetControl(QObject& control) : control_(control) {}

    std::string name() const override { return control_name(control_); }
    int index() const override {
        const auto index = control_index(control_);
        if (!index)
            raise(error::not_an_array);
        return *index;
    }
    ControlKind kind() const override { return ControlKind::other; }
    int parts() const override { return 1; }

    std::string text(int) const override { return property(caption_property()); }
    void set_text(int, std::string_view text) override {
        control_.setProperty(caption_property(), qt_text(text));
    }
    std::string tip(int) const override {
        check_tip();
        return property("toolTip");
    }
    void set_tip(int, std::string_view tip) override {
        check_tip();
        control_.setProperty("toolTip", qt_text(tip));
        // A control without a label of its own is read out, and shown empty, under its tip.
        for (const char* shown_as : {"accessibleName", "placeholderText"})
            if (!control_.property(shown_as).toString().isEmpty())
                control_.setProperty(shown_as, qt_text(tip));
    }

  protected:
    QObject& control_;

    std::string property(const char* name) const {
        return control_.property(name).toString().toStdString();
    }

  private:
    const char* caption_property() const {
        if (qobject_cast<QLabel*>(&control_) || qobject_cast<QAbstractButton*>(&control_) ||
            qobject_cast<QAction*>(&control_))
            return "text";
        if (qobject_cast<QGroupBox*>(&control_))
            return "title";
        raise(error::no_such_member);
    }
    void check_tip() const {
        if (!control_.isWidgetType())
            raise(error::no_such_member);
    }
};

class TextBoxControl : public WidgetControl {
  public:
    TextBoxControl(QLineEdit& box, const std::function<void()>& text_set)
        : WidgetControl(box), text_set_(text_set) {}
    ControlKind kind() const override { return ControlKind::text_box; }
    std::string text(int) const override { return property("text"); }
    void set_text(int, std::string_view text) override {
        control_.setProperty("text", qt_text(text));
        text_set_();
    }

  private:
    const std::function<void()>& text_set_;
};

class StatusBarControl : public WidgetControl {
  public:
    explicit StatusBarControl(QStatusBar& bar) : WidgetControl(bar) {
        panels_ = bar.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    }
    ControlKind kind() const override { return ControlKind::status_bar; }
    int parts() const override { return static_cast<int>(panels_.size()); }
    std::string text(int part) const override { return panels_.at(part)->text().toStdString(); }
    void set_text(int part, std::string_view text) override {
        panels_.at(part)->setText(qt_text(text));
    }
    std::string tip(int part) const override { return panels_.at(part)->toolTip().toStdString(); }
    void set_tip(int part, std::string_view tip) override {
        panels_.at(part)->setToolTip(qt_text(tip));
    }

  private:
    QList<QLabel*> panels_;
};

class TabStripControl : public WidgetControl {
  public:
    explicit TabStripControl(QTabWidget& tabs) : WidgetControl(tabs), tabs_(tabs) {}
    ControlKind kind() const override { return ControlKind::tab_strip; }
    int parts() const override { return tabs_.count(); }
    std::string text(int part) const override { return tabs_.tabText(part).toStdString(); }
    void set_text(int part, std::string_view text) override {
        tabs_.setTabText(part, qt_text(text));
    }
    std::string tip(int part) const override { return tabs_.tabToolTip(part).toStdString(); }
    void set_tip(int part, std::string_view tip) override {
        tabs_.setTabToolTip(part, qt_text(tip));
    }

  private:
    QTabWidget& tabs_;
};

/// Keys show pictures; their captions are kept, their tips are what is read out.
class ToolBarControl : public WidgetControl {
  public:
    explicit ToolBarControl(QToolBar& bar) : WidgetControl(bar), bar_(bar) {}
    ControlKind kind() const override { return ControlKind::tool_bar; }
    int parts() const override { return static_cast<int>(bar_.actions().size()); }
    std::string text(int part) const override {
        return key(part).property("Caption").toString().toStdString();
    }
    void set_text(int part, std::string_view text) override {
        key(part).setProperty("Caption", qt_text(text));
    }
    std::string tip(int part) const override { return key(part).toolTip().toStdString(); }
    void set_tip(int part, std::string_view tip) override {
        key(part).setToolTip(qt_text(tip));
        key(part).setText(qt_text(tip));
        if (QWidget* button = bar_.widgetForAction(&key(part)))
            button->setAccessibleName(qt_text(tip));
    }

  private:
    QToolBar& bar_;
    QAction& key(int part) const { return *bar_.actions().at(part); }
};

std::unique_ptr<FormControl> make_control(QObject& control, const std::function<void()>& text_set) {
    if (auto* box = qobject_cast<QLineEdit*>(&control))
        return std::make_unique<TextBoxControl>(*box, text_set);
    if (auto* bar = qobject_cast<QStatusBar*>(&control))
        return std::make_unique<StatusBarControl>(*bar);
    if (auto* tabs = qobject_cast<QTabWidget*>(&control))
        return std::make_unique<TabStripControl>(*tabs);
    if (auto* bar = qobject_cast<QToolBar*>(&control))
        return std::make_unique<ToolBarControl>(*bar);
    return std::make_unique<WidgetControl>(control);
}

} // namespace

WidgetForm::WidgetForm(QWidget& window, std::function<void()> text_set)
    : window_(window), text_set_(std::move(text_set)) {}

WidgetForm::~WidgetForm() = default;

void WidgetForm::list(const std::vector<QObject*>& controls) {
    controls_.clear();
    for (QObject* control : controls)
        controls_.push_back(make_control(*control, text_set_));
}

std::string WidgetForm::name() const {
    return window_.objectName().toStdString();
}

std::string WidgetForm::caption() const {
    return window_.windowTitle().toStdString();
}

void WidgetForm::set_caption(std::string_view caption) {
    window_.setWindowTitle(qt_text(caption));
    text_set_();
}

int WidgetForm::control_count() const {
    return static_cast<int>(controls_.size());
}

FormControl& WidgetForm::control(int position) {
    return *controls_.at(static_cast<std::size_t>(position));
}

} // namespace velmora

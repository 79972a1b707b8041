// A form of the tests: controls of every kind, held as plain data.
#pragma once

#include "platform/form.h"
#include "runtime/error.h"

#include <deque>
#include <string>
#include <vector>

namespace velmora::test {

class FakeControl : public FormControl {
  public:
    FakeControl(std::string own_name, ControlKind own_kind, int part_count = 1)
        : name_(std::move(own_name)), kind_(own_kind), texts(static_cast<std::size_t>(part_count)),
          tips(static_cast<std::size_t>(part_count)) {}

  private:
    std::string name_;
    ControlKind kind_;

  public:
    std::vector<std::string> texts, tips;
    int array_index = -1;   ///< -1: in no array
    bool has_text = true;   ///< without it the text raises 438
    bool has_tip = true;    ///< without it the tip raises 438
    int set_text_error = 0; ///< raised instead of setting the text

    std::string name() const override { return name_; }
    int index() const override {
        if (array_index < 0)
            raise(error::not_an_array);
        return array_index;
    }
    ControlKind kind() const override { return kind_; }
    int parts() const override { return static_cast<int>(texts.size()); }
    std::string text(int part) const override {
        require(has_text);
        return texts.at(static_cast<std::size_t>(part));
    }
    void set_text(int part, std::string_view text) override {
        require(has_text);
        if (set_text_error != 0)
            raise(set_text_error);
        texts.at(static_cast<std::size_t>(part)) = text;
    }
    std::string tip(int part) const override {
        require(has_tip);
        return tips.at(static_cast<std::size_t>(part));
    }
    void set_tip(int part, std::string_view tip) override {
        require(has_tip);
        tips.at(static_cast<std::size_t>(part)) = tip;
    }

  private:
    static void require(bool there) {
        if (!there)
            raise(error::no_such_member);
    }
};

class FakeForm : public Form {
  public:
    explicit FakeForm(std::string own_name) : name_(std::move(own_name)) {}

    std::string own_caption = "diseño";
    std::deque<FakeControl> controls;

    FakeControl& add(const std::string& name, ControlKind kind, int parts = 1) {
        return controls.emplace_back(name, kind, parts);
    }

    std::string name() const override { return name_; }
    std::string caption() const override { return own_caption; }
    void set_caption(std::string_view caption) override { own_caption = caption; }
    int control_count() const override { return static_cast<int>(controls.size()); }
    FormControl& control(int position) override {
        return controls.at(static_cast<std::size_t>(position));
    }

  private:
    std::string name_;
};

} // namespace velmora::test

// Answers the program's questions by a script: a queue of the exact texts that
// must come, each with its buttons and the answer to give. An unexpected text, a
// wrong button set or an entry that nobody used fails the test.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>

#include "platform/dialogs.h"

class ScriptedDialogs : public Dialogs {
  public:
    ~ScriptedDialogs() override {
        for (const auto& entry : boxes_) ADD_FAILURE() << "message never came: " << entry.text;
        for (const auto& entry : inputs_) ADD_FAILURE() << "question never came: " << entry.prompt;
        if (!files_.empty()) ADD_FAILURE() << files_.size() << " file dialogs never came";
    }

    void expectBox(const std::string& text, Buttons buttons = Buttons::Ok, Answer answer = Answer::Ok,
                   const std::string& title = "") {
        boxes_.push_back({text, buttons, answer, title});
    }
    void expectInput(const std::string& prompt, std::optional<std::string> answer) {
        inputs_.push_back({prompt, std::move(answer)});
    }
    void expectFile(std::optional<FileAnswer> answer) { files_.push_back(std::move(answer)); }
    /// All expected entries have come.
    bool finished() const { return boxes_.empty() && inputs_.empty() && files_.empty(); }

    FileQuestion lastFileQuestion;
    std::function<void()> onQuestion = [] {};  ///< looks at the screen while a box stands there

    Answer MsgBox(const std::string& text, Buttons buttons, const std::string& title) override {
        onQuestion();
        if (boxes_.empty()) {
            ADD_FAILURE() << "unexpected message: " << text;
            return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
        }
        const Box box = boxes_.front();
        boxes_.pop_front();
        EXPECT_EQ(text, box.text);
        EXPECT_EQ(static_cast<int>(buttons), static_cast<int>(box.buttons)) << text;
        EXPECT_EQ(title, box.title);
        return box.answer;
    }
    std::optional<std::string> InputBox(const std::string& prompt, const std::string&,
                                        const std::string&) override {
        onQuestion();
        if (inputs_.empty()) {
            ADD_FAILURE() << "unexpected question: " << prompt;
            return std::nullopt;
        }
        const Input input = inputs_.front();
        inputs_.pop_front();
        EXPECT_EQ(prompt, input.prompt);
        return input.answer;
    }
    std::optional<FileAnswer> fileDialog(const FileQuestion& question) override {
        lastFileQuestion = question;
        if (files_.empty()) {
            ADD_FAILURE() << "unexpected file dialog";
            return std::nullopt;
        }
        auto answer = files_.front();
        files_.pop_front();
        return answer;
    }

  private:
    struct Box {
        std::string text;
        Buttons buttons;
        Answer answer;
        std::string title;
    };
    struct Input {
        std::string prompt;
        std::optional<std::string> answer;
    };
    std::deque<Box> boxes_;
    std::deque<Input> inputs_;
    std::deque<std::optional<FileAnswer>> files_;
};

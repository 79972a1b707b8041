#include "adapters/qt/qt_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace velmora {
namespace {

/// Two folders, and the desktop's own file dialog under a person's hands.
class FileDialogTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(base_.path()).mkpath("programa"));
        ASSERT_TRUE(QDir(base_.path()).mkpath("alas"));
    }

    std::string path(const char* name) const { return base_.filePath(name).toStdString(); }

    void make(const char* name) const {
        QFile file(base_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    FileRequest request(std::string name, std::string extension = ".dat") const {
        return {"Fichero a generar", ".dat | *.dat", path("programa"), std::move(name),
                std::move(extension)};
    }

    /// Lets a person at the dialog as soon as it stands; it is accepted then.
    void with_dialog(std::function<void(QFileDialog&, QLineEdit&)> person) {
        QTimer::singleShot(0, qApp, [this, person = std::move(person)] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return with_dialog(person);
            auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
            ASSERT_NE(name, nullptr);
            shown_folder_ = dialog->directory().absolutePath().toStdString();
            shown_name_ = name->text().toStdString();
            person(*dialog, *name);
            // Before the list of the folder has been read, the dialog's own accept waits for it.
            QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
        });
    }

    void accept_as_offered() {
        with_dialog([](QFileDialog&, QLineEdit&) {});
    }

    void type(const QString& text) {
        with_dialog([text](QFileDialog&, QLineEdit& name) { name.setText(text); });
    }

    QTemporaryDir base_;
    std::unique_ptr<Dialogs> dialogs_ = make_qt_dialogs();
    std::string shown_folder_;
    std::string shown_name_;
};

TEST_F(FileDialogTest, an_absolute_name_wins_over_the_folder) {
    make("alas/ala.dat");
    accept_as_offered();
    EXPECT_EQ(dialogs_->save_file(request(path("alas/ala"))), path("alas/ala.dat"));
    EXPECT_EQ(shown_folder_, path("alas"));
    EXPECT_EQ(shown_name_, "ala");
}

TEST_F(FileDialogTest, a_bare_name_stands_in_the_folder) {
    accept_as_offered();
    EXPECT_EQ(dialogs_->save_file(request("ala")), path("programa/ala.dat"));
    EXPECT_EQ(shown_folder_, path("programa"));
    EXPECT_EQ(shown_name_, "ala");
}

TEST_F(FileDialogTest, no_name_shows_the_folder_alone) {
    type("punta");
    EXPECT_EQ(dialogs_->save_file(request("")), path("programa/punta.dat"));
    EXPECT_EQ(shown_folder_, path("programa"));
    EXPECT_EQ(shown_name_, "");
}

TEST_F(FileDialogTest, a_typed_name_takes_the_extension_where_it_has_none) {
    struct Case {
        const char* typed;
        const char* extension;
        const char* answered;
    };
    for (const Case& c :
         {Case{"punta", ".dat", "alas/punta.dat"}, Case{"punta", ".scr", "alas/punta.scr"},
          Case{"punta.scr", ".dat", "alas/punta.scr"},
          Case{"../programa/punta", ".dat", "programa/punta.dat"}}) {
        type(c.typed);
        EXPECT_EQ(QDir::cleanPath(QString::fromStdString(
                                      dialogs_->save_file(request(path("alas/ala"), c.extension))))
                      .toStdString(),
                  path(c.answered));
    }
}

TEST_F(FileDialogTest, a_file_that_exists_is_answered_without_a_question_of_the_dialog) {
    make("alas/ala.dat");
    type("ala.dat");
    EXPECT_EQ(dialogs_->save_file(request(path("alas/otra"))), path("alas/ala.dat"));
}

TEST_F(FileDialogTest, a_name_in_a_folder_that_is_gone_is_offered_in_the_folder) {
    accept_as_offered();
    EXPECT_EQ(dialogs_->save_file(request(path("perdida/ala"))), path("programa/ala.dat"));
    EXPECT_EQ(shown_folder_, path("programa"));
}

TEST_F(FileDialogTest, a_cancelled_dialog_answers_nothing) {
    QTimer::singleShot(0, qApp, [] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->reject();
    });
    EXPECT_EQ(dialogs_->save_file(request(path("alas/ala"))), "");
}

TEST_F(FileDialogTest, the_open_dialog_stands_in_its_folder_and_takes_names_as_they_are) {
    make("alas/ala.dat");
    type("ala.dat");
    EXPECT_EQ(dialogs_->open_file({"Abrir", "DAT|*.dat", path("alas"), ""}), path("alas/ala.dat"));
    EXPECT_EQ(shown_folder_, path("alas"));
}

} // namespace
} // namespace velmora

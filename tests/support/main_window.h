// What tests of the main window and of the forms over it share.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

class frmMain;

// A fresh program directory with two categories and three people, and with the interpretations that
// the program ships; and the main window over it, loaded when a test asks for it.
class MainWindowTest : public testing::Test {
  protected:
    MainWindowTest();
    ~MainWindowTest() override;

    // Loads the main window, as a start of the program does.
    frmMain& load();

    // Loads it, and chooses the entry with this text in the list of people.
    frmMain& loadAndChoose(const QString& displayText);

    frmMain& window() { return *window_; }

    // A control of the main window by its name.
    template <class Control>
    Control& control(const char* name) {
        return child<Control>(*window_, QString::fromLatin1(name));
    }

    // Triggers a menu entry or a toolbar button by its name, as the user does.
    void trigger(const char* action);

    // More rows for the person database; each returns its key.
    Long addCategory(const QString& category);
    Long addPerson(const PersonRow& person);

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    Long family_;
    Long friends_;

  private:
    std::unique_ptr<frmMain> window_;
};

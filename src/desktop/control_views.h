#pragma once

#include <memory>

#include "desktop/control_view.h"
#include "toolkit/controls.h"
#include "toolkit/file_lists.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage {

// The view of any control, by its kind.
std::unique_ptr<ControlView> MakeControlView(Control& control, const ViewSetting& setting);

// label_view.cpp
std::unique_ptr<ControlView> MakeView(Label& label, const ViewSetting& setting);

// button_views.cpp
std::unique_ptr<ControlView> MakeView(CommandButton& button, const ViewSetting& setting);
std::unique_ptr<ControlView> MakeView(CheckBox& check, const ViewSetting& setting);
std::unique_ptr<ControlView> MakeView(OptionButton& option, const ViewSetting& setting);

// text_box_views.cpp
std::unique_ptr<ControlView> MakeView(TextBox& text_box, const ViewSetting& setting);

// list_views.cpp
std::unique_ptr<ControlView> MakeView(ListBox& list_box, const ViewSetting& setting);
std::unique_ptr<ControlView> MakeView(DriveListBox& drives, const ViewSetting& setting);
std::unique_ptr<ControlView> MakeView(ComboBox& combo_box, const ViewSetting& setting);

// control_views.cpp
std::unique_ptr<ControlView> MakeView(Frame& frame, const ViewSetting& setting);
std::unique_ptr<ControlView> MakeView(Image& image, const ViewSetting& setting);
std::unique_ptr<ControlView> MakeView(HScrollBar& bar, const ViewSetting& setting);
std::unique_ptr<ControlView> MakeView(Toolbar& toolbar, const ViewSetting& setting);
std::unique_ptr<ControlView> MakeView(ProgressBar& bar, const ViewSetting& setting);
std::unique_ptr<ControlView> MakeView(RichTextBox& rich, const ViewSetting& setting);

}  // namespace brindlepage

#pragma once

#include <QSize>
#include <QString>
#include <QTimer>
#include <functional>
#include <set>
#include <string>

#include "tools/screens/stage.h"

namespace brindlepage::screens {

// Takes pictures of a stage into a folder of PNG files.
class Photographer {
 public:
  enum class Album {
    Everything,  // each form and each box as it first comes up, under its name, besides what is
                 // asked for
    Manual,      // what is asked for alone, cut to what matters and in few colours
  };

  Photographer(QString folder, QSize screen, Album album);

  Album album() const { return album_; }
  Stage& stage() { return *stage_; }
  void Watch(Stage& stage);

  // What the program has come to.
  void TakeNewForms();
  void TakeFront(const QString& name);
  void Take(const QString& name, Form& form);
  // The next box that opens, before it is answered.
  void TakeNextBox(const QString& name) { next_box_ = name; }
  // The next that is printed: NAME-sheet, then NAME-key.
  void TakeNextSheet(const QString& name) { sheet_ = name; }
  void TakePage(const RichTextBox& box, int start, int length);

  // Lets the program work until that is so and no box is open; ends the tool if it never is.
  void Await(const std::string& what, const std::function<bool()>& so);
  void Settle();

 private:
  void Save(const QString& name, QWidget& window);
  void Save(const QString& name, const QImage& image);
  void AnswerBox();

  QString folder_;
  QSize screen_;
  Album album_;
  Stage* stage_ = nullptr;
  QTimer boxes_;
  QString next_box_;
  QString sheet_;
  std::set<std::string> taken_;
  int messages_ = 0;
};

}  // namespace brindlepage::screens

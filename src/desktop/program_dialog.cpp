#include "desktop/program_dialog.h"

#include <QDir>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>

namespace brindlepage {

namespace {

class ProgramsOnly : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  // As the library sorts files, folders first, and not once more here.
  void sort(int column, Qt::SortOrder order) override { sourceModel()->sort(column, order); }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
    const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
    if (files == nullptr) return true;
    const QModelIndex file = files->index(row, 0, parent);
    constexpr auto kRuns = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    return files->isDir(file) || (files->permissions(file) & kRuns);
  }
};

// The library would look into each file for its kind, and a folder of programs holds thousands.
class ProgramIcons : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;

  // Called in the thread that reads the folder.
  QIcon icon(const QFileInfo& file) const override { return file.isDir() ? folder_ : program_; }
  QString type(const QFileInfo& file) const override {
    return file.isDir() ? QStringLiteral("Folder") : QStringLiteral("Program");
  }

 private:
  const QIcon folder_ = icon(Folder);
  const QIcon program_ = icon(File);
};

}  // namespace

bool AsksForPrograms(std::string_view filter) {
#ifdef Q_OS_WIN
  (void)filter;
  return false;
#else
  return filter.ends_with("|*.exe");
#endif
}

void OfferPrograms(QFileDialog& dialog) {
  // The desktop's own dialog knows no such filter.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setProxyModel(new ProgramsOnly(&dialog));
  static ProgramIcons icons;  // the dialog doesn't keep them
  dialog.setIconProvider(&icons);
  dialog.setNameFilter("Programs (*)");
  static constexpr const char* kFolders[] = {"/usr/bin", "/Applications", "/"};
  for (const char* folder : kFolders) {
    if (QDir(folder).exists()) return dialog.setDirectory(folder);
  }
}

}  // namespace brindlepage

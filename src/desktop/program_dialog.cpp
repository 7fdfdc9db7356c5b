#include "desktop/program_dialog.h"

#include <QDir>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>

namespace brindlepage {

namespace {

class ProgramsOnly : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
    const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
    if (files == nullptr) return true;
    const QModelIndex file = files->index(row, 0, parent);
    constexpr auto kRuns = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    return files->isDir(file) || (files->permissions(file) & kRuns);
  }
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
  dialog.setNameFilter("Programs (*)");
  static constexpr const char* kFolders[] = {"/usr/bin", "/Applications", "/"};
  for (const char* folder : kFolders) {
    if (QDir(folder).exists()) return dialog.setDirectory(folder);
  }
}

}  // namespace brindlepage

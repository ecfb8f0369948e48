#include "app/boxes/versions_dialog.h"

#include "export/thumbnail.h"
#include "library/open.h"
#include "model/store.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace zentrik {

namespace {

enum Column { picture, saved, nodes, links, projectTitle };
constexpr QSize pictureSize(120, 72);
constexpr qsizetype longestTitle = 200;

void complete(QTreeWidgetItem& row, const std::string& file, double ratio) {
    ProjectFile version = readProject(file, "It");
    if (!version.project) return row.setText(projectTitle, "cannot be read");
    Editor ed;
    ed.Nodes = std::move(version.project->Nodes);
    ed.Links = std::move(version.project->Links);
    row.setText(nodes, QString::number(UsedNodes(ed)));
    row.setText(links, QString::number(UsedLinks(ed)));
    row.setText(projectTitle, QString::fromStdString(version.project->title).left(longestTitle));
    Subject subject(ed);
    row.setIcon(picture, QPixmap::fromImage(thumbnail(subject, pictureSize, ratio)));
}

}  // namespace

VersionsDialog::VersionsDialog(const std::string& project, const std::vector<std::string>& files,
                               QWidget* parent)
    : QDialog(parent), files_(files), rows_(new QTreeWidget(this)) {
    setObjectName("VersionsBox");
    setWindowTitle("Earlier versions of " + QString::fromStdString(project).left(longestTitle));
    rows_->setHeaderLabels({"Picture", "Saved", "Nodes", "Links", "Title"});
    for (const int column : {nodes, links}) rows_->headerItem()->setTextAlignment(column, Qt::AlignRight);
    rows_->setRootIsDecorated(false);
    rows_->setIconSize(pictureSize);
    for (const std::string& file : files_) {
        auto* row = new QTreeWidgetItem(rows_);
        row->setSizeHint(picture, pictureSize + QSize(8, 6));
        const QDateTime time = QFileInfo(QString::fromStdString(file)).lastModified();
        row->setText(saved, time.toString("yyyy-MM-dd HH:mm:ss"));
        row->setTextAlignment(nodes, Qt::AlignRight | Qt::AlignVCenter);
        row->setTextAlignment(links, Qt::AlignRight | Qt::AlignVCenter);
    }
    rows_->setCurrentItem(rows_->topLevelItem(0));
    rows_->setColumnWidth(picture, pictureSize.width() + 16);
    rows_->setColumnWidth(saved, fontMetrics().horizontalAdvance("0000-00-00 00:00:00") + 24);
    for (const int column : {nodes, links}) rows_->setColumnWidth(column, 70);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Open)->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(rows_);
    layout->addWidget(buttons);
    resize(640, 440);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(rows_, &QTreeWidget::itemDoubleClicked, this, &QDialog::accept);
    rows_->setFocus();
    QTimer::singleShot(0, this, [this] { completeNext(); });
}

void VersionsDialog::completeNext() {
    if (completed_ >= rows_->topLevelItemCount()) return;
    complete(*rows_->topLevelItem(completed_), files_[static_cast<std::size_t>(completed_)],
             devicePixelRatioF());
    ++completed_;
    QTimer::singleShot(0, this, [this] { completeNext(); });
}

int VersionsDialog::chosen() const { return rows_->indexOfTopLevelItem(rows_->currentItem()); }

}  // namespace zentrik

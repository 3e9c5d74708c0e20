#include "desktop/main/name_list.h"

#include <QKeyEvent>
#include <QStatusBar>
#include <QVBoxLayout>

#include "desktop/bind/binding.h"
#include "desktop/bind/list_models.h"
#include "desktop/layout.h"
#include "desktop/noted_rows.h"
#include "desktop/text.h"

namespace desktop {

NameList::NameList(forms::ListBox& list, QLineEdit& field)
    : QFrame(field.window()),
      list_(list),
      field_(field),
      view_(new HintList(this)),
      count_(new QLabel(this)),
      model_(new ListBoxModel(list, RowOrder::AsListed, this)) {
  setFrameShape(QFrame::StyledPanel);
  setFrameShadow(QFrame::Raised);
  setAutoFillBackground(true);
  view_->setFrameShape(QFrame::NoFrame);
  view_->setFocusPolicy(Qt::NoFocus);
  view_->setUniformItemSizes(true);
  view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view_->setModel(model_);
  view_->setItemDelegate(new NotedRows(view_));
  count_->setContentsMargins(gap::small, 2, gap::small, 2);
  count_->setForegroundRole(QPalette::PlaceholderText);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->setSpacing(0);
  layout->addWidget(view_);
  layout->addWidget(count_);
  connect(view_, &QListView::clicked, this,
          [this](const QModelIndex& index) { take(index.row()); });
  attach(*this, list, Follow::All, [this](forms::Aspect aspect) { refresh(aspect); });
  field.installEventFilter(this);
}

void NameList::refresh(forms::Aspect aspect) {
  if (aspect == forms::Aspect::Items) model_->refresh();
  count_->setText(qs(list_.caption()) + QStringLiteral(": ") + QString::number(list_.count()));
  if (list_.visible()) place();
}

void NameList::place() {
  const int row = std::max(view_->sizeHintForRow(0), fontMetrics().height());
  if (parentWidget() != field_.window()) setParent(field_.window());
  const QPoint below = field_.mapTo(field_.window(), QPoint(0, field_.height()));
  rowsShown_ = rowsThatFit(below.y(), row);
  const int height = rowsShown_ * row + 2;
  view_->setFixedHeight(height);
  setGeometry(QRect(below, QSize(field_.width(), height + count_->sizeHint().height() + 2)));
  raise();
  setVisible(list_.visible());
}

// As many as are wanted, and as the window has room for above its status line.
int NameList::rowsThatFit(int below, int row) const {
  const int wanted =
      list_.visibleRows() > 0 ? list_.visibleRows() : static_cast<int>(list_.count());
  const auto* const status = field_.window()->findChild<QStatusBar*>();
  const int end = field_.window()->height() - (status == nullptr ? 0 : status->height());
  const int room = end - below - count_->sizeHint().height() - 2 * gap::small;
  return std::clamp(room / row, 1, std::max(wanted, 1));
}

bool NameList::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return keyPressed(static_cast<QKeyEvent*>(event)->key());
    case QEvent::KeyRelease:
      return keyReleased(static_cast<QKeyEvent*>(event)->key());
    case QEvent::Resize:
    case QEvent::Move:
      if (list_.visible()) place();
      return false;
    default:
      return QFrame::eventFilter(watched, event);
  }
}

bool NameList::keyPressed(int key) {
  eatenKey_ = isVisible() && steer(key) ? key : 0;
  return eatenKey_ != 0;
}

bool NameList::keyReleased(int key) {
  if (key != eatenKey_) return false;
  eatenKey_ = 0;
  return true;
}

bool NameList::steer(int key) {
  const int marked = view_->currentIndex().row();
  const int last = model_->rowCount() - 1;
  const auto mark = [&](int row) {
    view_->setCurrentIndex(model_->index(std::clamp(row, 0, last), 0));
    return true;
  };
  switch (key) {
    case Qt::Key_Down:
      return mark(marked + 1);
    case Qt::Key_Up:
      return mark(marked - 1);
    case Qt::Key_PageDown:
      return mark(marked + rowsShown_);
    case Qt::Key_PageUp:
      return mark(marked - rowsShown_);
    case Qt::Key_Escape:
      list_.setVisible(false);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // Without a mark, Enter goes to the next field like everywhere.
      if (marked < 0) return false;
      take(marked);
      return true;
    default:
      return false;
  }
}

void NameList::take(int row) {
  list_.setListIndex(-1);
  list_.setListIndex(row);
}

}  // namespace desktop

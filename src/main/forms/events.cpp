// The events of the tree, the country filter and the list, and the handlers
// they run.
#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTreeWidget>
#include "main/forms/frmmain.h"
#include "main/forms/guarded.h"

void DropContacts(FrmMain& window);  // movecontacts.cpp

void FrmMain::WireControls() {
    connect(TreeView1, &QTreeWidget::itemClicked, this,
            [this] { RunHandler("TreeView1 node click", [this] { TreeView1_NodeClick(); }); });
    TreeView1->setContextMenuPolicy(Qt::PreventContextMenu);
    TreeView1->installEventFilter(this);
    TreeView1->viewport()->installEventFilter(this);
    TreeView1->viewport()->setAcceptDrops(true);

    connect(cmbCountry, &QComboBox::currentIndexChanged, this,
            [this] { RunHandler("cmbCountry click", [this] { cmbCountry_Click(); }); });

    connect(ListView1, &QTreeWidget::itemDoubleClicked, this,
            [this] { RunHandler("ListView1 double click", [this] { ListView1_DblClick(); }); });
    connect(ListView1->header(), &QHeaderView::sectionClicked, this,
            [this](int column) { ListView1_ColumnClick(column); });
    // The list's own drag of its selection; the drop copies nothing out of
    // it, the move is the drop routine's work.
    ListView1->setDragEnabled(true);
    ListView1->setDragDropMode(QAbstractItemView::DragOnly);
    ListView1->setDefaultDropAction(Qt::CopyAction);
    ListView1->setContextMenuPolicy(Qt::PreventContextMenu);
    ListView1->installEventFilter(this);
    ListView1->viewport()->installEventFilter(this);
}

bool FrmMain::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (TreeView1 && watched == TreeView1->viewport() &&
        (type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop)) {
        auto* drag = static_cast<QDropEvent*>(event);
        if (!drag->mimeData()->hasFormat(QStringLiteral("application/x-qabstractitemmodeldatalist"))) return true;
        // Over the tree the drop highlight follows the pointer.
        if (type != QEvent::Drop) SetDropHighlight(TreeView1->itemAt(drag->position().toPoint()));
        else RunHandler("TreeView1 drop", [this] { DropContacts(*this); });
        drag->setDropAction(Qt::CopyAction);
        drag->accept();
        return true;
    }
    if (TreeView1 && watched == TreeView1->viewport()) {
        // The right button doesn't move the selection: its release works on
        // the node selected before.
        if ((type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) &&
            static_cast<QMouseEvent*>(event)->button() == Qt::RightButton)
            return true;
        if (type == QEvent::MouseButtonRelease &&
            static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
            RunHandler("TreeView1 mouse up", [this] { TreeView1_MouseUp(); });
            return true;
        }
    } else if (ListView1 && watched == ListView1->viewport()) {
        if (type == QEvent::MouseButtonRelease &&
            static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
            RunHandler("ListView1 mouse up", [this] { ListView1_MouseUp(); });
            return true;
        }
    } else if (TreeView1 && watched == TreeView1 && type == QEvent::KeyPress) {
        TreeView1_KeyDown(static_cast<QKeyEvent*>(event));
        return true;
    } else if (ListView1 && watched == ListView1 && type == QEvent::KeyPress) {
        // The Delete key runs the handler of mnuDelete_info; no other key.
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
            Entry("mnuDelete_info")->trigger();
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

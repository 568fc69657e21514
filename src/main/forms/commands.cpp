// The menu bar, the pop-up menus and the toolbar of the main window, built
// from the command table, and their captions from the string libraries.
#include <QAction>
#include <QHash>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "main/forms/commandtable.h"
#include "main/forms/frmmain.h"
#include "main/forms/guarded.h"
#include "platform/core/stringlib.h"

namespace {
QString Latin1(const char* text) { return QString::fromLatin1(text); }

QString LibraryString(Library library, int number) {
    switch (library) {
    case Library::Language: return GetLanguageString(number);
    case Library::Edition: return GetEditionString(number);
    case Library::None: break;
    }
    return QString();
}

void Name(QObject* object, const char* name) { object->setObjectName(Latin1(name)); }
}  // namespace

void FrmMain::BuildCommands() {
    menuBar()->setObjectName("MenuBar");
    QHash<QString, QMenu*> menus;  // menus, pop-ups and drop-downs by name, as they are made
    auto wire = [this](QAction* action, const char* name, int index) {
        connect(action, &QAction::triggered, this,
                [this, name, index] { RunHandler(name, [&] { RunCommand(*this, name, index); }); });
    };
    for (const Command& c : Commands()) {
        QMenu* parent = c.parent ? menus.value(Latin1(c.parent)) : nullptr;
        switch (c.kind) {
        case CommandKind::Menu: {
            QMenu* menu = parent ? parent->addMenu(Latin1(c.design)) : menuBar()->addMenu(Latin1(c.design));
            Name(menu, c.name);
            menu->menuAction()->setVisible(c.shown);
            menus.insert(Latin1(c.name), menu);
            break;
        }
        case CommandKind::Popup: {
            auto* menu = new QMenu(Latin1(c.design), this);
            Name(menu, c.name);
            menus.insert(Latin1(c.name), menu);
            break;
        }
        case CommandKind::Separator:
            Name(parent->addSeparator(), c.name);
            break;
        case CommandKind::Entry:
        case CommandKind::ButtonEntry:
            for (int i = 0; i < c.count; ++i) {
                const QString text = c.count > 1 ? Latin1(c.design) + QString::number(i + 1) : Latin1(c.design);
                QAction* action = parent->addAction(text);
                Name(action, c.name);
                if (c.count > 1) action->setProperty("Index", i);
                action->setVisible(c.shown);
                wire(action, c.name, i);
            }
            break;
        case CommandKind::Button: {
            // Buttons stand at the even places 2 to 12, separators at the odd ones.
            Toolbar1->addSeparator();
            auto* button = new QToolButton(Toolbar1);
            Name(button, c.name);
            button->setText(Latin1(c.design));
            button->setToolTip(Latin1(c.toolTip));
            button->setIcon(style()->standardIcon(c.picture));
            button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
            button->setPopupMode(QToolButton::MenuButtonPopup);
            auto* dropDown = new QMenu(button);
            button->setMenu(dropDown);
            menus.insert(Latin1(c.name), dropDown);
            const char* key = c.name;
            connect(button, &QToolButton::clicked, this, [this, key] { RunHandler(key, [&] { RunCommand(*this, key); }); });
            Toolbar1->addWidget(button);
            break;
        }
        }
    }
    Toolbar1->adjustSize();
}

void FrmMain::LoadCommandCaptions() {
    // The window's objects by name, gathered in one walk rather than one
    // search of the whole window per command.
    QMultiHash<QString, QObject*> named;
    for (QObject* object : findChildren<QObject*>())
        if (!object->objectName().isEmpty()) named.insert(object->objectName(), object);
    for (const Command& c : Commands()) {
        QString text = LibraryString(c.library, c.string);
        if (text.isEmpty()) continue;  // the design caption stands
        // The product's name stands for "%s" in the caption of mnuHelpWhat.
        if (qstrcmp(c.name, "mnuHelpWhat") == 0) text = ReplaceText(text, "%s", LoadResString(998));
        const QList<QObject*> objects = named.values(Latin1(c.name));
        const auto menu = std::find_if(objects.begin(), objects.end(), [](QObject* o) { return qobject_cast<QMenu*>(o); });
        for (QObject* object : objects) {
            if (c.kind == CommandKind::Button) {
                if (auto* button = qobject_cast<QToolButton*>(object)) button->setText(text);
            } else if (menu != objects.end()) {
                if (object == *menu) static_cast<QMenu*>(object)->setTitle(text);
            } else if (auto* action = qobject_cast<QAction*>(object)) {
                action->setText(text);
            }
        }
    }
}

QAction* FrmMain::Entry(const char* name) const { return findChild<QAction*>(Latin1(name)); }
QMenu* FrmMain::Menu(const char* name) const { return findChild<QMenu*>(Latin1(name)); }

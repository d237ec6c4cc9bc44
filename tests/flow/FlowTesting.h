#pragma once

#include "flow/BaseNode.h"
#include "flow/FlowPanel.h"
#include "flow/NodesOptionsPanel.h"
#include "flow/NodesTabBar.h"
#include "flow/TabLabel.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

/// The flow panel with its options panel, wired as on the main page.
class Flow : public QWidget
{
public:
    Flow()
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&options);
        layout->addWidget(&panel);
        connect(&panel, &FlowPanel::showOptions, &options, &NodesOptionsPanel::slotShowOptions);
        connect(&panel, &FlowPanel::flowChanged, &options, &NodesOptionsPanel::slotFlowChanged);
        connect(&panel, &FlowPanel::nodeRemoved, &options, &NodesOptionsPanel::slotNodeRemoved);
        resize(735, 600);
        show();
    }

    void add(const QString& name) { choose(QStringLiteral("FlowPanelMenu"), name); }
    void addAll(const QStringList& names)
    {
        for (const QString& name : names) {
            add(name);
        }
    }
    QMenu* favorites() { return panel.findChild<QMenu*>(QStringLiteral("FavoritesMenu")); }
    void chooseFavorite(const QString& text) { choose(favorites()->objectName(), text); }

    /// Triggers the entry of that text in the menu of that object name.
    void choose(const QString& menu, const QString& text)
    {
        for (QAction* action : panel.findChild<QMenu*>(menu)->actions()) {
            if (action->text() == text) {
                action->trigger();
                return;
            }
        }
        QFAIL(qPrintable(QStringLiteral("no entry ") + text));
    }

    QPushButton* button(const char* name)
    {
        return panel.findChild<QPushButton*>(QLatin1String(name));
    }

    BaseNode* node(int index) { return options.flow().value(index); }

    /// The operations in chain order; each tab has to stand for the node of its place.
    QStringList names()
    {
        QStringList list;
        for (int i = 0; i < bar->count(); ++i) {
            if (!node(i) || node(i)->name() != bar->tabText(i)) {
                return {QStringLiteral("tab %1 has another node").arg(i)};
            }
            list += node(i)->name();
        }
        return options.flow().size() == bar->count()
                   ? list
                   : QStringList(QStringLiteral("too many nodes"));
    }

    QPixmap thumbnail(int tab)
    {
        return static_cast<TabLabel*>(bar->tabButton(tab, QTabBar::LeftSide))->pixmap();
    }

    NodesOptionsPanel options{this};
    FlowPanel panel{&options, this};
    NodesTabBar* bar = panel.findChild<NodesTabBar*>();
};

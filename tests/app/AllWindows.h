#pragma once

#include "app/MainPage.h"
#include "batch/AppSettingsDialog.h"
#include "batch/BatchDialog.h"
#include "flow/BaseNode.h"
#include "flow/FavoritesDeleteDlg.h"
#include "flow/FlowPanel.h"
#include "flow/Operations.h"
#include "preview/ImageViewDialog.h"
#include <QMWidgets/AboutDialog.h>
#include <QMWidgets/App.h>
#include <QMWidgets/AppUpdateDialog.h>
#include <QMWidgets/CssEditor.h>
#include <QMWidgets/DropWidget.h>
#include <QMWidgets/HelpDialog.h>
#include <QMWidgets/InputDialog.h>
#include <QMWidgets/JoinDialog.h>
#include <QMWidgets/JoinReminderDialog.h>
#include <QMWidgets/MMessageBox.h>
#include <QMWidgets/RateReminderDialog.h>
#include <QMWidgets/TellDialog.h>
#include <QMWidgets/TellReminderDialog.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTest>

/// Every window of the program, the page with a node of each operation.
struct AllWindows {
    MainPage page{nullptr};
    QMWidgets::DropWidget dropWindow{nullptr};
    AppSettingsDialog settings{nullptr};
    BatchDialog batch;
    FavoritesDeleteDlg favorites{nullptr};
    ImageViewDialog view{nullptr};
    QMWidgets::MMessageBox message{1, QString(), QStringLiteral("Message"),
                                   QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                                   nullptr};
    QMWidgets::InputDialog input{QStringLiteral("Name:"), nullptr, nullptr, {}, 0};
    QMWidgets::HelpDialog help{nullptr};
    QMWidgets::TellDialog tell{nullptr};
    QMWidgets::JoinDialog join{nullptr};
    QMWidgets::RateReminderDialog rateReminder{nullptr};
    QMWidgets::TellReminderDialog tellReminder{nullptr};
    QMWidgets::JoinReminderDialog joinReminder{nullptr};
    QMWidgets::AboutDialog about{nullptr};
    QMWidgets::AppUpdateDialog newer{true, nullptr};
    QMWidgets::AppUpdateDialog latest{false, nullptr};
    QMWidgets::CssEditor editor{nullptr};

    AllWindows()
    {
        QMWidgets::App::app()->setMainWidget(&page);
        dropWindow.resize(400, 400);
        help.addSlide(QString());
        for (const Operation& operation : operations()) {
            page.findChild<FlowPanel*>()->addNode(operation.name);
        }
    }

    QList<QWidget*> list()
    {
        return {&page,  &dropWindow, &settings,     &batch,        &favorites, &view,
                &input, &message,    &help,         &tell,         &join,      &rateReminder,
                &about, &newer,      &tellReminder, &joinReminder, &latest,    &editor};
    }
};

/// Shows the windows one after the other, and the page with each of its nodes.
template <class Look> void forEachView(AllWindows& windows, const Look& look)
{
    for (QWidget* const window : windows.list()) {
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window));
        // All of it in use, so that nothing is left out for being switched off.
        for (QGroupBox* const group : window->findChildren<QGroupBox*>()) {
            group->setChecked(true);
        }
        const auto nodes = window->findChildren<BaseNode*>();
        if (nodes.isEmpty()) {
            look(window);
        }
        for (BaseNode* const node : nodes) {
            qobject_cast<QStackedWidget*>(node->parentWidget())->setCurrentWidget(node);
            // The other kind of a node with two has other controls.
            auto* const kind = node->findChild<QComboBox*>();
            for (int i = kind ? kind->count() - 1 : 0; i >= 0; --i) {
                if (kind) {
                    kind->setCurrentIndex(i);
                }
                QCoreApplication::processEvents();
                look(window);
            }
        }
        window->hide();
    }
}

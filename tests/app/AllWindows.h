#pragma once

#include "app/MainPage.h"
#include "batch/AppSettingsDialog.h"
#include "batch/BatchDialog.h"
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

#include <QLineEdit>

/// Every window of the program, the page with a node of each operation.
struct AllWindows {
    MainPage page{nullptr};
    QMWidgets::DropWidget dropWindow{nullptr};
    AppSettingsDialog settings{nullptr};
    BatchDialog batch;
    FavoritesDeleteDlg favorites{nullptr};
    ImageViewDialog view{nullptr};
    QMWidgets::MMessageBox message{
        1, QString(), QString(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, nullptr};
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

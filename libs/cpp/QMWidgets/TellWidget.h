#pragma once

#include <QFrame>

namespace QMWidgets
{

/// A column of big buttons by which the user tells others of the program. A network whose address
/// is empty has its button hidden. Needs an App.
class TellWidget : public QFrame
{
    Q_OBJECT

public:
    explicit TellWidget(QWidget* parent = nullptr);

public slots:
    void slotFaceBookClicked();
    void slotTwitterClicked();
    void slotVKontakteClicked();
    void slotEmailClicked();
};

} // namespace QMWidgets

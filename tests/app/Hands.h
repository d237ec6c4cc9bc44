#pragma once

#include <functional>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QVector>
#include <random>

class BatchDialog;
class CreatorDropArea;
class NodesOptionsPanel;
class NodesTabBar;
class Program;
class QAbstractButton;
class QDialog;
class QMenu;
class QWidget;

/// A user who does anything at any time, as a seed tells: also while a run lets events through, and
/// while a dialog is open. The hands move as long as an event loop runs; after the last action, or
/// at the first trouble, they quit it.
class Hands : public QObject
{
public:
    /// The photos may be of any kind; each drop takes some of them.
    Hands(Program& program, const QList<QUrl>& photos, quint32 seed, int actions);

    /// What was wrong and what led to it; empty if the flow was whole after each action.
    QString trouble() const { return m_trouble; }
    /// How many actions took place while another one was under way.
    int nestedActions() const { return m_nestedActions; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Action {
        int weight;
        const char* name;
        std::function<void()> act;
    };

    int upTo(int end) { return int(m_random() % quint32(end)); }
    template <class List> auto oneOf(const List& list)
    {
        return list.isEmpty() ? typename List::value_type{} : list.at(upTo(list.size()));
    }
    void takeTurn(QDialog* dialog);
    void act();
    void note(const QString& action);
    void check();
    QString whatIsBroken() const;

    CreatorDropArea* square() const;
    void press(QAbstractButton* button);
    void press(const char* name);
    void choose(QMenu* menu, int first, int count);
    void addNode();
    void chooseFavorite(int first, int count);
    void dragTab(int moves);
    void moveSlider();
    void setControl();
    void step();
    void dropPhotos();
    void showBubble();
    void runBatch();

    void answer(QDialog* dialog);
    void answerBatch(BatchDialog* dialog);

    const QVector<Action> m_actions;
    Program& m_program;
    NodesOptionsPanel* m_options;
    NodesTabBar* m_bar;
    QList<QUrl> m_photos;
    std::mt19937 m_random;
    quint32 m_seed;
    int m_actionsLeft;
    int m_depth = 0;
    int m_turnsToWait = 0;
    int m_batchPlan = 0;
    int m_nestedActions = 0;
    bool m_isDragging = false;
    QStringList m_lastActions;
    QString m_trouble;
};

#pragma once

#include "flow/ResultFromPool.h"

#include <QFrame>
#include <QImage>
#include <QString>

class QDomDocument;
class QDomElement;
class QDomNode;
class QFormLayout;
class QGroupBox;
class QVBoxLayout;

namespace QMWidgets
{
class Label;
}

/// One step of a flow: a page of controls, the parameters that they hold, the XML of those
/// parameters, and the operation on a picture.
///
/// The controls are the parameters: nothing keeps a copy. The box around them is checkable, and its
/// check is the node's active state. Interface thread only; just the filter runs on a pool thread,
/// while the caller waits.
class BaseNode : public QFrame
{
    Q_OBJECT

public:
    /// The operation's name, which is never translated: it is the key of the operation table and
    /// stands in flow files.
    BaseNode(const QString& name, QWidget* parent);

    bool isActive() const;
    QString name() const { return m_name; }
    /// Shows the operation's icon beside the page.
    void setNodeIcon(const QString& operationName);

    /// Tells the tab what the picture looks like after this node: the image, or the disabled mark
    /// while the node is switched off.
    void reportPreview(const QImage& image);

    /// Sets the active state and the controls from the children of a parameters element. What is
    /// missing or can't be read stays as it is.
    void loadParameters(const QDomNode& parameters);
    /// The parameters as an element, the active state first.
    QDomElement parametersElement(QDomDocument document);
    /// The same as a text of its own.
    QString parametersText();

    virtual void readParameters(const QDomNode& parameters);
    virtual void writeParameters(QDomElement& parameters, QDomDocument document);
    /// Takes the picture through the operation if the node is active, and reports the preview in
    /// any case. A null image stays null.
    virtual void process(QImage& image) = 0;

signals:
    void parametersChanged();
    void previewChanged(const QImage& image);

public slots:
    void slotActiveStateChanged();

protected:
    /// Where a node puts its controls.
    QVBoxLayout* optionsLayout() const { return m_optionsLayout; }
    /// Adds an empty form in the middle of the page, the usual place of a node's controls.
    QFormLayout* addForm();

    /// The form of every process(): runs filter(image) on a pool thread, waits for it, and reports.
    /// The filter holds copies of the parameters and touches no widget.
    template <class Filter> void runFilter(QImage& image, Filter filter)
    {
        if (isActive()) {
            image = resultFromPool([image, filter] { return filter(image); });
        }
        reportPreview(image);
    }

private:
    QImage m_disabledImage;
    QGroupBox* m_groupBox;
    QMWidgets::Label* m_iconLabel;
    QString m_name;
    QVBoxLayout* m_optionsLayout;
};

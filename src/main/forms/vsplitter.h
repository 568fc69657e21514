#pragma once
// The vertical splitter between the tree and the list: a bar the user drags;
// it reports each move, and the window places the controls beside it.
#include <QFrame>

class VSplitterBar : public QFrame {
    Q_OBJECT
public:
    explicit VSplitterBar(QWidget* parent = nullptr);
signals:
    void moved(int leftPixels);
protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
private:
    int grab_ = -1;
};

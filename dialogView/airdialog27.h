#ifndef AIRDIALOG27_H
#define AIRDIALOG27_H

#include "airdialogbase.h"

// The climate panel over the main area. It shows what the climate record
// says and stays for 15 seconds after the last record or touch.
class AirDialog27 : public AirDialogBase
{
    Q_OBJECT
public:
    explicit AirDialog27(QWidget *parent = 0);

    void setData(AirData const &record) Q_DECL_OVERRIDE;

protected:
    void mousePressEvent(QMouseEvent *event) Q_DECL_OVERRIDE;
    void mouseReleaseEvent(QMouseEvent *event) Q_DECL_OVERRIDE;
    void mouseMoveEvent(QMouseEvent *event) Q_DECL_OVERRIDE;
    void keyPressEvent(QKeyEvent *event) Q_DECL_OVERRIDE;
    void paintEvent(QPaintEvent *event) Q_DECL_OVERRIDE;
};

#endif // AIRDIALOG27_H

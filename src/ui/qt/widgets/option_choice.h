// An option button whose group is kept by the form: none of a group may be selected.
#pragma once

#include <QRadioButton>

#include <vector>

namespace warhost {

/// The arrow keys select the neighbours in the same parent, in a circle. A group is one stop for the Tab key: its
/// selected option, else its first.
class OptionChoice : public QRadioButton {
    Q_OBJECT

public:
    explicit OptionChoice(QWidget* parent);

    /// Shows the state that the form holds.
    void show_selected(bool selected);

protected:
    void nextCheckState() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::vector<OptionChoice*> group() const;
};

} // namespace warhost

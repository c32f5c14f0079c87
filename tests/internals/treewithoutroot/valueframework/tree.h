#ifndef VALUEFRAMEWORK_TREE_H
#define VALUEFRAMEWORK_TREE_H

/// The tree of a suite that does not show its root, in the place of the platform's.
class Tree
{
};

#endif

// The failures of the math library. Each is constructed from a resource identifier (throwers pass
// 0) and carries the fixed text of core::Exception. Only SingularMatrix3DException and
// VectorInFocusException are ever thrown, by value.

#pragma once

#include "core/Exception.h"

class MathException : public core::Exception {
  public:
    explicit MathException(unsigned long resourceID) : core::Exception(resourceID) {}
};

class MatrixException : public MathException {
  public:
    explicit MatrixException(unsigned long resourceID) : MathException(resourceID) {}
};

// Access to an element that the matrix does not have; the three numbers that describe it are
// ignored.
class MatrixIndexOutOfRangeException : public MatrixException {
  public:
    explicit MatrixIndexOutOfRangeException(unsigned long resourceID, long = 0, long = 0, long = 0)
        : MatrixException(resourceID) {}
};

class MatrixDifferentSizesException : public MatrixException {
  public:
    using MatrixException::MatrixException;
};

class InvalidMatrixSizeException : public MatrixException {
  public:
    using MatrixException::MatrixException;
};

class NotSquareMatrixException : public MatrixException {
  public:
    using MatrixException::MatrixException;
};

class NoMultiplyableMatrixException : public MatrixException {
  public:
    using MatrixException::MatrixException;
};

// The matrix to invert has no inverse.
class SingularMatrix3DException : public MatrixException {
  public:
    using MatrixException::MatrixException;
};

// The point lies in the plane that a projective matrix sends to infinity.
class VectorInFocusException : public MatrixException {
  public:
    using MatrixException::MatrixException;
    // The sixteen values of the offending matrix are ignored.
    VectorInFocusException(unsigned long resourceID, const float* /*values*/)
        : MatrixException(resourceID) {}
};
